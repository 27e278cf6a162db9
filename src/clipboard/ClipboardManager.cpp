#include "clipboard/ClipboardManager.h"

#include "base/Files.h"
#include "base/Scheduler.h"
#include "clipboard/CapturePlan.h"
#include "clipboard/FileForms.h"
#include "store/Store.h"

#include <QBuffer>
#include <QImageReader>
#include <QUrl>

#include <algorithm>

namespace ravelo {

namespace {

constexpr Seconds pollInterval{0.5};
constexpr QLatin1StringView pngType("image/png");

bool isImage(QByteArray bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).canRead();
}

QList<PasteboardEntry> imageForms(const QString& path) {
    const auto bytes = readFile(path);
    return bytes && isImage(*bytes) ? QList<PasteboardEntry>{{pngType, *bytes}}
                                    : QList<PasteboardEntry>();
}

} // namespace

ClipboardManager::ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler)
    : store_(store),
      pasteboard_(pasteboard),
      scheduler_(scheduler),
      lastChangeCount_(pasteboard.changeCount()) {}

void ClipboardManager::start() {
    timer_ = scheduler_.every(pollInterval, [this] { poll(); });
    notice_ = pasteboard_.onChange([this] { poll(); });
    QObject::connect(&store_, &Store::cleared, &context_, [this] {
        reads_.clear();
        captured_.reset();
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

/// Only what went with its owner, never what was copied before it.
void ClipboardManager::offerAgain() {
    if (!captured_ || pasteboard_.orphaned() != captured_->changeCount) {
        return;
    }
    const auto forms = formsOf(captured_->clip);
    if (!forms.isEmpty() && pasteboard_.adopt(forms)) {
        suppressOwnChange();
    }
}

/// Nothing where the user has deleted the clip.
QList<PasteboardEntry> ClipboardManager::formsOf(const QUuid& id) const {
    const auto clip = std::ranges::find(store_.clips(), id, &ClipItem::id);
    if (clip == store_.clips().cend()) {
        return {};
    }
    return clip->kind == ClipKind::image
               ? imageForms(store_.imagePath(clip->imageFileName))
               : QList<PasteboardEntry>{{plainTextType, clip->text.toUtf8()}};
}

void ClipboardManager::copyText(const QString& text) {
    write({{plainTextType, text.toUtf8()}});
}

void ClipboardManager::copyImage(const QString& path) {
    write(imageForms(path));
}

void ClipboardManager::copyFile(const QUrl& url) {
    write(fileForms(url));
}

void ClipboardManager::write(const QList<PasteboardEntry>& forms) {
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
