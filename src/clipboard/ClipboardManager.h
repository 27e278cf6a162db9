#pragma once

#include "base/Handle.h"
#include "platform/Pasteboard.h"

#include <QObject>
#include <QUuid>

#include <functional>
#include <map>
#include <memory>
#include <optional>

class QUrl;

namespace ravelo {

class DetachedJobs;
class ImageDecoder;
class Scheduler;
class Store;
struct ClipItem;

/// Turns changes of the general pasteboard into clips, and puts clips back on it. Contents that
/// their owner marks as secret are left alone, and so is what the program wrote itself. Where a
/// program ends and the contents with it, the clip that was made of them takes their place.
/// Main thread only.
class ClipboardManager {
public:
    /// What is on the pasteboard at this moment is never captured.
    ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler, DetachedJobs& jobs,
                     std::shared_ptr<ImageDecoder> decoder);

    /// Looks every 0.5 s from now on, and at once where the platform tells of a change.
    void start();

    void copyText(const QString& text);

    /// Puts a stored image on the pasteboard, in a moment; does nothing if the file cannot be
    /// loaded or something else is copied first.
    void copyImage(const QString& path);

    /// Puts a file on the pasteboard, for file managers to paste a copy of it; does nothing where
    /// the address is not of a file.
    void copyFile(const QUrl& url);

private:
    /// Contents of the pasteboard and the clip that stands for them.
    struct Capture {
        qint64 changeCount;
        QUuid clip;
    };

    void poll();
    void capture(qint64 count, const PasteboardSnapshot& snapshot);
    void offerAgain();
    [[nodiscard]] const ClipItem* capturedClip() const;
    void readImage(const QString& path, std::function<void(const QList<PasteboardEntry>&)> use);
    void write(const QList<PasteboardEntry>& forms);
    void suppressOwnChange();

    Store& store_;
    Pasteboard& pasteboard_;
    Scheduler& scheduler_;
    DetachedJobs& jobs_;
    std::shared_ptr<ImageDecoder> decoder_;
    qint64 lastChangeCount_;
    qint64 suppressUntilCount_ = -1;  ///< The change that we made ourselves.
    std::optional<Capture> captured_; ///< The newest.
    Handle timer_;
    Handle notice_;
    Handle image_; ///< Being read to be put on the pasteboard.
    QObject context_;
    std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true);
    std::map<qint64, Handle>
        reads_; ///< By change count; those up to the newest answer are settled.
};

} // namespace ravelo
