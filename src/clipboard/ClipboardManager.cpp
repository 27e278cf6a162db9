#include "clipboard/ClipboardManager.h"

#include "base/Files.h"
#include "base/Scheduler.h"
#include "clipboard/CapturePlan.h"
#include "store/Store.h"

#include <QBuffer>
#include <QImageReader>

namespace ravelo {

namespace {

constexpr Seconds pollInterval{0.5};
constexpr QLatin1StringView pngType("image/png");

bool isImage(QByteArray bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).canRead();
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
    QObject::connect(&store_, &Store::cleared, &context_, [this] { reads_.clear(); });
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
    // A read that was answered may still be waiting to be told when the next change is seen, so
    // none is dropped here: the pasteboard itself gives up those whose owner has gone.
    reads_[count] = pasteboard_.read(nextCaptureType, [this, count](const auto& snapshot) {
        capture(snapshot);
        reads_.erase(reads_.begin(), reads_.upper_bound(count));
    });
}

void ClipboardManager::capture(const PasteboardSnapshot& snapshot) {
    if (isConcealed(snapshot)) {
        return;
    }
    if (const QString text = capturedText(snapshot); !text.isEmpty()) {
        store_.addClip(text);
    } else {
        store_.addImageClip(snapshot);
    }
}

void ClipboardManager::copyText(const QString& text) {
    write({{plainTextType, text.toUtf8()}});
}

void ClipboardManager::copyImage(const QString& path) {
    if (const auto bytes = readFile(path); bytes && isImage(*bytes)) {
        write({{pngType, *bytes}});
    }
}

void ClipboardManager::write(const QList<PasteboardEntry>& forms) {
    pasteboard_.write(forms);
    suppressUntilCount_ = pasteboard_.changeCount();
    lastChangeCount_ = suppressUntilCount_;
}

} // namespace ravelo
