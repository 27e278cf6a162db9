#pragma once

#include "base/Handle.h"

#include <QPointF>

#include <functional>
#include <optional>

namespace ravelo {

struct PointerState {
    /// In global logical pixels, y growing downwards; nothing if the display server does not reveal
    /// it.
    std::optional<QPointF> location;

    /// Whether any button is down, or was pressed since the state was last asked for, so that short
    /// clicks count. Wheels are not buttons.
    bool buttonDown = false;

    /// Whether the left button is down right now.
    bool leftDown = false;
};

/// The session's pointer, on display servers that can be asked about it. Main thread.
class Pointer {
public:
    virtual ~Pointer() = default;

    /// Asks the display server; at most one round trip.
    [[nodiscard]] virtual PointerState state() = 0;

    /// Whether a press now would reach one of our own managed windows. A few round trips while one
    /// is shown, otherwise none.
    [[nodiscard]] virtual bool isOverOwnWindow() = 0;

    /// Called for each press of the left or right button anywhere, including other programs'
    /// windows, with its place in global logical pixels: the pointer may be elsewhere by now.
    /// Nothing if the display server does not reveal it.
    [[nodiscard]] virtual Handle onPress(std::function<void(std::optional<QPointF>)> callback) = 0;

    /// Calls `wake` once, when the pointer next moves or a button goes down or up. Costs nothing
    /// while nothing moves. A later call replaces an earlier one.
    [[nodiscard]] virtual Handle onNextActivity(std::function<void()> wake) = 0;
};

} // namespace ravelo
