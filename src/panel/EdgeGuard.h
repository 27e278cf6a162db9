#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QLineF>
#include <QPointF>

#include <optional>

namespace ravelo {

class DragMonitor;
class EdgeBarrier;
class Screens;

/// Keeps a file drag from sliding into the top 10 pixels around the middle of the main screen,
/// where bars would swallow it, so that it stays over the panel. Main thread only.
class EdgeGuard {
public:
    enum class State { idle, waitingForTrust, guarding, failed };

    EdgeGuard(Scheduler& scheduler, Screens& screens, DragMonitor& drags, EdgeBarrier& barrier);

    /// Begins to guard; tries again every 3 s until the process is trusted to hold the pointer.
    void start();

    /// Told at every tick where the pointer is while a drag of another program is under way, and
    /// nothing while there is none.
    void follow(std::optional<QPointF> drag);

    [[nodiscard]] State state() const { return state_; }

private:
    void hold(QLineF line);

    Scheduler& scheduler_;
    Screens& screens_;
    DragMonitor& drags_;
    EdgeBarrier& barrier_;
    State state_ = State::idle;
    Handle retry_;
    Handle held_;
};

} // namespace ravelo
