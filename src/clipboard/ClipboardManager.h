#pragma once

#include "base/Handle.h"
#include "platform/Pasteboard.h"

#include <QObject>

#include <map>

namespace ravelo {

class Scheduler;
class Store;

/// Turns changes of the general pasteboard into clips, and puts clips back on it. Contents that
/// their owner marks as secret are left alone, and so is what the program wrote itself.
/// Main thread only.
class ClipboardManager {
public:
    /// What is on the pasteboard at this moment is never captured.
    ClipboardManager(Store& store, Pasteboard& pasteboard, Scheduler& scheduler);

    /// Looks every 0.5 s from now on, and at once where the platform tells of a change.
    void start();

    void copyText(const QString& text);

    /// Puts a stored image on the pasteboard; does nothing where the file cannot be loaded.
    void copyImage(const QString& path);

private:
    void poll();
    void capture(const PasteboardSnapshot& snapshot);
    void write(const QList<PasteboardEntry>& forms);

    Store& store_;
    Pasteboard& pasteboard_;
    Scheduler& scheduler_;
    qint64 lastChangeCount_;
    qint64 suppressUntilCount_ = -1; ///< The change that we made ourselves.
    Handle timer_;
    Handle notice_;
    QObject context_;
    std::map<qint64, Handle>
        reads_; ///< By change count; those up to the newest answer are settled.
};

} // namespace ravelo
