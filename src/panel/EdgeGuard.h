#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QPointF>
#include <QRectF>

#include <functional>
#include <optional>

namespace ravelo {

class EdgeBarrier;
class Screens;

/// Keeps a file drag from sliding into the top 10 pixels around the middle of the main screen,
/// where bars would swallow it, so that it stays over the panel. Main thread only.
class EdgeGuard {
public:
    enum class State { idle, waitingForTrust, guarding, failed };

    /// `carriesFiles` is asked about drags of other programs once the pointer may need to be held.
    EdgeGuard(Scheduler& scheduler, Screens& screens, EdgeBarrier& barrier,
              std::function<bool()> carriesFiles);

    /// Starts guarding; retries every 3 s until the process is allowed to hold the pointer.
    void start();

    /// Where a drag comes from. Drags from the panel always carry files.
    enum class Source { anotherProgram, panel };

    /// Called for each sight of the pointer with its position during a drag with the left button,
    /// and with nothing while there is none.
    void follow(std::optional<QPointF> drag, Source source = Source::anotherProgram);

    [[nodiscard]] State state() const { return state_; }

private:
    void hold(QRectF strip);

    Scheduler& scheduler_;
    Screens& screens_;
    EdgeBarrier& barrier_;
    std::function<bool()> carriesFiles_;
    State state_ = State::idle;
    Handle retry_;
    Handle held_;
};

} // namespace ravelo
