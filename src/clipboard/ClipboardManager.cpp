#include "clipboard/ClipboardManager.h"

#include "base/Files.h"
#include "base/Scheduler.h"
#include "clipboard/CapturePlan.h"
#include "clipboard/FileForms.h"
#include "platform/DetachedJobs.h"
#include "store/Store.h"

#include <QBuffer>
#include <QImageReader>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

constexpr Seconds pollInterval{0.5};
constexpr QLatin1StringView pngType("image/png");

bool isImage(QByteArray bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).canRead();
}

/// Not for the main thread.
QList<PasteboardEntry> imageForms(const QString& path) {
    const auto bytes = readFile(path);
    return bytes && isImage(*bytes) ? QList<PasteboardEntry>{{pngType, *bytes}}
                                    : QList<PasteboardEntry>();
}

} // namespace

ClipboardManager::ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler,
                                   DetachedJobs& jobs)
    : store_(store),
      pasteboard_(pasteboard),
      scheduler_(scheduler),
      jobs_(jobs),
      lastChangeCount_(pasteboard.changeCount()) {}

void ClipboardManager::start() {
    timer_ = scheduler_.every(pollInterval, [this] { poll(); });
    notice_ = pasteboard_.onChange([this] { poll(); });
    QObject::connect(&store_, &Store::cleared, &context_, [this] {
        reads_.clear();
        captured_.reset();
        offering_.reset();
    });
}

void ClipboardManager::poll() {
    const qint64 count = pasteboard_.changeCount();
    if (count == lastChangeCount_) {
        return;
    }
    lastChangeCount_ = count;
    if (count == suppressUntilCount_) {
        return;
    }
    if (pasteboard_.orphaned()) {
        offerAgain();
        return;
    }
    // A read that was answered may still be waiting to be told when the next change is seen, so
    // none is dropped here: the pasteboard itself gives up those whose owner has gone.
    reads_[count] = pasteboard_.read(nextCaptureType, [this, count](const auto& snapshot) {
        capture(count, snapshot);
        reads_.erase(reads_.begin(), reads_.upper_bound(count));
    });
}

void ClipboardManager::capture(qint64 count, const PasteboardSnapshot& snapshot) {
    if (isConcealed(snapshot)) {
        return;
    }
    auto kept = [this, life = std::weak_ptr(life_), count](const QUuid& clip) {
        if (!life.expired()) {
            captured_ = {count, clip};
            offerAgain(); // The owner may have ended while an image was being written.
        }
    };
    if (const QString text = capturedText(snapshot); !text.isEmpty()) {
        store_.addClip(text, kept);
    } else {
        store_.addImageClip(snapshot, kept);
    }
}

/// Only what went with its owner, never what was copied before it, and nothing if the user has
/// deleted the clip.
void ClipboardManager::offerAgain() {
    if (!captured_ || pasteboard_.orphaned() != captured_->changeCount) {
        return;
    }
    const auto clip = std::ranges::find(store_.clips(), captured_->clip, &ClipItem::id);
    if (clip == store_.clips().cend()) {
        return;
    }
    const auto offer = [this, count = captured_->changeCount](const Forms& forms) {
        if (!forms.isEmpty() && pasteboard_.orphaned() == count && pasteboard_.adopt(forms)) {
            suppressOwnChange();
        }
    };
    if (clip->kind == ClipKind::image) {
        offering_ = readImage(store_.imagePath(clip->imageFileName), offer);
    } else {
        offer({{plainTextType, clip->text.toUtf8()}});
    }
}

Handle ClipboardManager::readImage(const QString& path, std::function<void(const Forms&)> done) {
    const auto forms = std::make_shared<Forms>();
    return jobs_.run([path, forms] { *forms = imageForms(path); },
                     [forms, done = std::move(done)] { done(*forms); });
}

void ClipboardManager::copyText(const QString& text) {
    write({{plainTextType, text.toUtf8()}});
}

void ClipboardManager::copyImage(const QString& path) {
    copying_ = readImage(path, [this, count = pasteboard_.changeCount()](const Forms& forms) {
        if (pasteboard_.changeCount() == count) { // Else something was copied after it.
            write(forms);
        }
    });
}

void ClipboardManager::copyFile(const QUrl& url) {
    write(fileForms(url));
}

void ClipboardManager::write(const Forms& forms) {
    copying_.reset();
    if (!forms.isEmpty()) {
        pasteboard_.write(forms);
        suppressOwnChange();
    }
}

void ClipboardManager::suppressOwnChange() {
    suppressUntilCount_ = pasteboard_.changeCount();
    lastChangeCount_ = suppressUntilCount_;
}

} // namespace ravelo
