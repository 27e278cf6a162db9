#include "ui/clips/Clips.h"

#include "panel/NotchController.h"
#include "store/Store.h"
#include "ui/controls/Toast.h"
#include "ui/lists/Deleting.h"

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

Clips::Clips(Services services, const QLocale& locale)
    : Tab({u"Clipboard"_s, tr("Clipboard"), u"doc.on.clipboard"_s,
           QUrl(u"qrc:/Ravelo/Clips/ClipboardTab.qml"_s), Look::Page::kept, Look::Search::has}),
      services_(services),
      locale_(locale),
      list_(services.store, services.scheduler, locale),
      links_(services.opener, services.scheduler, services.toast),
      ages_(services.scheduler, list_) {
    connect(&links_, &LinkOpening::opened, &services_.controller, &NotchController::dismiss);
}

void Clips::begin() {
    ages_.start();
}

void Clips::reset() {
    ages_.stop();
    search({});
    list_.dismissTooLarge();
    links_.reset();
}

void Clips::showTooLarge(const TooLargeCopy& copy) {
    list_.setTooLarge(copy);
    if (services_.controller.isOpen()) {
        services_.toast.flash(tooLargeMessage(copy, locale_));
    }
}

void Clips::search(const QString& text) {
    list_.setSearch(text);
    services_.snippets.list()->setSearch(text);
}

void Clips::copy(int row) {
    const ClipItem* clip = clipAt(row);
    if (clip == nullptr) {
        return;
    }
    if (clip->kind == ClipKind::image && !clip->imageFileName.isEmpty()) {
        services_.controller.copyImage(services_.store.imagePath(clip->imageFileName));
    } else {
        services_.controller.copy(clip->text);
    }
    services_.toast.flashCopied();
}

void Clips::copyAndClose(int row) {
    if (clipAt(row) != nullptr) {
        copy(row);
        services_.controller.dismiss();
    }
}

void Clips::openLink(int row) {
    if (const ClipItem* clip = clipAt(row)) {
        links_.open(*clip);
    }
}

void Clips::togglePin(int row) {
    services_.store.togglePin(list_.idAt(row));
}

QString Clips::revealed(int row) const {
    constexpr qsizetype longest = 1000; // Wider than any panel.
    const ClipItem* clip = clipAt(row);
    return clip && !clip->secret.isEmpty() ? clip->text.left(longest).simplified() : QString();
}

void Clips::keepSecret(int row) {
    services_.store.keepSecret(list_.idAt(row));
}

void Clips::forgetSecret(int row) {
    if (list_.isSecret(row)) {
        services_.store.deleteClip(list_.idAt(row));
    }
}

void Clips::remove(int row) {
    if (row == list_.tooLargeRow()) {
        list_.dismissTooLarge();
    } else {
        services_.deleting.run([this, id = list_.idAt(row)](const auto& records) {
            return removed([&] { services_.store.deleteClip(id, records); });
        });
    }
}

void Clips::clear() {
    services_.deleting.run(
        [this](const auto& records) {
            return removed([&] { services_.store.clearClips(records); });
        },
        {tr("History cleared \u00b7 1 clip"), tr("History cleared \u00b7 %1 clips")});
}

/// How many clips `remove` removes.
qsizetype Clips::removed(const std::function<void()>& remove) const {
    const qsizetype before = services_.store.clips().size();
    remove();
    return before - services_.store.clips().size();
}

const ClipItem* Clips::clipAt(int row) const {
    const auto& clips = services_.store.clips();
    const auto found = std::ranges::find(clips, list_.idAt(row), &ClipItem::id);
    return found == clips.end() ? nullptr : &*found;
}

} // namespace ravelo
