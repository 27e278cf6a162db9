#pragma once

#include "base/Handle.h"

#include <QList>
#include <QUrl>

#include <functional>
#include <list>

namespace ravelo {

class DragMonitor;
class FileTransfer;

/// Gets the files of a drop on the panel. They may still be on their way when the button goes up:
/// they are taken when they come, unless another drag has begun by then. Main thread.
class FileDrop {
public:
    /// Hands the files of each drop to `done`, never an empty list.
    FileDrop(DragMonitor& drags, FileTransfer& transfers,
             std::function<void(const QList<QUrl>&)> done);

    /// The drag that is under way has entered a window of ours: its source is asked now, so that
    /// the answer is there at the drop.
    void expect();

    /// The newest drag was dropped on us.
    void take();

private:
    /// One that is still without its files.
    struct Drop {
        qint64 drag = 0; ///< The change count of the drag that was dropped.
        std::function<void(const QList<QUrl>&)> answer;
        Handle retrieving; ///< Them, by a key.
        Handle loading;
    };

    void look();
    void look(Drop& drop);
    void end(Drop& drop, const QList<QUrl>& files);

    DragMonitor& drags_;
    FileTransfer& transfers_;
    std::function<void(const QList<QUrl>&)> done_;
    std::list<Drop> drops_;
    Handle answers_;
};

} // namespace ravelo
