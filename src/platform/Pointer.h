#pragma once

#include "base/Handle.h"

#include <QPointF>

#include <functional>
#include <optional>

namespace ravelo {

struct PointerState {
    /// In global logical pixels, y growing downwards; nothing where the display server does not
    /// tell where the pointer is.
    std::optional<QPointF> location;

    /// Whether any button is down, or was pressed since the state was asked for last: a click
    /// shorter than the time between two questions counts. Wheels are not buttons.
    bool buttonDown = false;

    /// Whether the left button is down right now.
    bool leftDown = false;
};

/// The one pointer of the session, wherever it is. Main thread.
class Pointer {
public:
    virtual ~Pointer() = default;

    /// Asks the display server; at most one round trip.
    [[nodiscard]] virtual PointerState state() = 0;

    /// Whether a press now would reach a window of our own that the desktop manages. A few round
    /// trips while there is such a window, else none.
    [[nodiscard]] virtual bool isOverOwnWindow() = 0;

    /// Called for each press of the left or right button anywhere, other programs' windows
    /// included. Where a display server does not tell of such presses it is never called.
    [[nodiscard]] virtual Handle onPress(std::function<void()> callback) = 0;

    /// Calls `wake` once, when the pointer next moves or a button goes down or up. Costs nothing
    /// while nothing moves. Asking again replaces what was asked before.
    [[nodiscard]] virtual Handle onNextActivity(std::function<void()> wake) = 0;
};

} // namespace ravelo
