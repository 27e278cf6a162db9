// What ClipboardManager puts on the pasteboard.

#include "base/Scheduler.h"
#include "clipboard/CapturePause.h"
#include "clipboard/ClipboardManager.h"
#include "clipboard/FileForms.h"
#include "store/Store.h"

#include <QPointer>
#include <QUrl>

namespace ravelo {

using namespace Qt::StringLiterals;

void ClipboardManager::copyText(const QString& text) {
    write({{plainTextType, text.toUtf8()}});
}

void ClipboardManager::copyNewText(const QString& text) {
    if (!pause_.isPaused()) {
        store_.addClip(text, {}, judging([manager = QPointer(this)](const Verdict& verdict) {
                           if (manager && verdict.kept && !verdict.secret.isEmpty()) {
                               Q_EMIT manager->secretKept(verdict.secret);
                           }
                       }));
    }
    copyText(text);
}

void ClipboardManager::copyClip(const QUuid& clip, const std::function<void(bool)>& done) {
    if (const ClipItem* item = find(clip)) {
        copying_ = reading_.clip(*item, ClipReading::Files::included,
                                 [write = unlessOverwritten(), done](const Forms& forms) {
                                     write(forms);
                                     done(!forms.isEmpty());
                                 });
    } else {
        done(false);
    }
}

void ClipboardManager::copyImage(const QString& path) {
    copying_ = reading_.image(path, unlessOverwritten());
}

void ClipboardManager::copyWithImage(const QString& text, const QString& path) {
    copying_ = reading_.image(path, [text, written = unlessOverwritten()](const Forms& image) {
        written((text.isEmpty() ? Forms() : Forms{{plainTextType, text.toUtf8()}}) + image);
    });
}

/// Writes, unless something newer was copied meanwhile. Earlier reads do not count: their owner may
/// never answer.
std::function<void(const ClipboardManager::Forms&)> ClipboardManager::unlessOverwritten() {
    return [this, before = held_, seen = lastChangeCount_](const Forms& forms) {
        const bool isRead = held_ != before && held_->changeCount > seen;
        const bool isBeingRead = !reads_.empty() && reads_.rbegin()->first > seen;
        if (!isRead && !isBeingRead && unwantedCount_ <= seen) {
            write(forms);
        }
    };
}

void ClipboardManager::copyPng(const QByteArray& png) {
    write({{u"image/png"_s, png}});
}

void ClipboardManager::copyFile(const QUrl& url) {
    write(fileForms(url));
}

void ClipboardManager::write(const Forms& forms) {
    copying_.reset();
    if (forms.isEmpty()) {
        return;
    }
    const qint64 count = pasteboard_.write(forms);
    suppressOwnChange(count);
    PasteboardSnapshot written;
    for (const PasteboardEntry& form : forms) {
        written.types.append(form.type);
        written.answers.insert(form.type, form.bytes);
    }
    if (const auto key = contentsKey(written)) {
        held_ = std::make_shared<Held>(
            Held{count, {*key, 0, scheduler_.uptime()}, Source::owner, Clip::kept});
    }
}

void ClipboardManager::suppressOwnChange(qint64 count) {
    suppressUntilCount_ = count;
    lastChangeCount_ = count;
}

} // namespace ravelo
