#include "clipboard/ClipboardManager.h"

#include "base/Files.h"
#include "base/Scheduler.h"
#include "clipboard/CapturePlan.h"
#include "clipboard/FileForms.h"
#include "platform/DetachedJobs.h"
#include "platform/ImageDecoder.h"
#include "store/Store.h"

#include <QUrl>

#include <algorithm>

namespace ravelo {

namespace {

constexpr Seconds pollInterval{0.5};
constexpr QLatin1StringView pngType("image/png");

QList<PasteboardEntry> imageForms(const QString& path, ImageDecoder& decoder) {
    const auto bytes = readFile(path);
    return bytes && !decoder.size(*bytes).isEmpty() ? QList<PasteboardEntry>{{pngType, *bytes}}
                                                    : QList<PasteboardEntry>();
}

} // namespace

ClipboardManager::ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler,
                                   DetachedJobs& jobs, std::shared_ptr<ImageDecoder> decoder)
    : store_(store),
      pasteboard_(pasteboard),
      scheduler_(scheduler),
      jobs_(jobs),
      decoder_(std::move(decoder)),
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
    const auto plan = [decoder = decoder_](const PasteboardSnapshot& snapshot) {
        return nextCaptureType(snapshot, *decoder);
    };
    reads_[count] = pasteboard_.read(plan, [this, count](const auto& snapshot) {
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
    const ClipItem* const clip = capturedClip();
    if (clip == nullptr) {
        return;
    }
    const auto adopt = [this, count = captured_->changeCount](const QList<PasteboardEntry>& forms) {
        const bool wanted = captured_ && captured_->changeCount == count && capturedClip() &&
                            pasteboard_.orphaned() == count;
        if (wanted && !forms.isEmpty() && pasteboard_.adopt(forms)) {
            suppressOwnChange();
        }
    };
    if (clip->kind == ClipKind::image) {
        readImage(store_.imagePath(clip->imageFileName), adopt);
    } else {
        adopt({{plainTextType, clip->text.toUtf8()}});
    }
}

/// Null if the user has deleted it.
const ClipItem* ClipboardManager::capturedClip() const {
    const auto clip = std::ranges::find(store_.clips(), captured_->clip, &ClipItem::id);
    return clip == store_.clips().cend() ? nullptr : &*clip;
}

/// Not for the main thread; what is copied meanwhile takes its place.
void ClipboardManager::readImage(const QString& path,
                                 std::function<void(const QList<PasteboardEntry>&)> use) {
    const auto forms = std::make_shared<QList<PasteboardEntry>>();
    image_ = jobs_.run([path, forms, decoder = decoder_] { *forms = imageForms(path, *decoder); },
                       [forms, use = std::move(use)] { use(*forms); });
}

void ClipboardManager::copyText(const QString& text) {
    write({{plainTextType, text.toUtf8()}});
}

void ClipboardManager::copyImage(const QString& path) {
    readImage(path, [this](const QList<PasteboardEntry>& forms) { write(forms); });
}

void ClipboardManager::copyFile(const QUrl& url) {
    write(fileForms(url));
}

void ClipboardManager::write(const QList<PasteboardEntry>& forms) {
    if (!forms.isEmpty()) {
        image_.reset();
        pasteboard_.write(forms);
        suppressOwnChange();
    }
}

void ClipboardManager::suppressOwnChange() {
    suppressUntilCount_ = pasteboard_.changeCount();
    lastChangeCount_ = suppressUntilCount_;
}

} // namespace ravelo
