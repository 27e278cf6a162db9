#pragma once

#include "base/Handle.h"

#include <QList>
#include <QUrl>

#include <functional>
#include <optional>

namespace ravelo {

class DragMonitor;

/// Gets the files of a drop on the panel. They may still be on their way when the button goes up:
/// they are taken when they come, unless another drag has begun by then. Main thread.
class FileDrop {
public:
    /// Hands the files of each drop to `done`, never an empty list.
    FileDrop(DragMonitor& drags, std::function<void(const QList<QUrl>&)> done);

    /// The drag that is under way has entered a window of ours: its source is asked now, so that
    /// the answer is there at the drop.
    void expect();

    /// The newest drag was dropped on us.
    void take();

private:
    void look();

    DragMonitor& drags_;
    std::function<void(const QList<QUrl>&)> done_;
    std::optional<qint64> awaited_; ///< The change count of the drag that was dropped.
    Handle answers_;
};

} // namespace ravelo
