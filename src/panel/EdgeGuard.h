#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QPointF>
#include <QRectF>

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

    /// Where a drag comes from. Those of the panel carry files.
    enum class Source { anotherProgram, panel };

    /// Called at every tick with the pointer's place during a drag with the left button, and with
    /// nothing while there is none.
    void follow(std::optional<QPointF> drag, Source source = Source::anotherProgram);

    [[nodiscard]] State state() const { return state_; }

private:
    void hold(QRectF strip);

    Scheduler& scheduler_;
    Screens& screens_;
    DragMonitor& drags_;
    EdgeBarrier& barrier_;
    State state_ = State::idle;
    Handle retry_;
    Handle held_;
};

} // namespace ravelo
