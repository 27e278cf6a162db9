#pragma once

#include "platform/InputGrab.h"
#include "platform/x11/connection/Connection.h"
#include "platform/x11/window/ForeignCover.h"

namespace ravelo::x11 {

/// Tries the pointer first and then the keyboard, and gives back at once what it got. The keyboard
/// is tried only if the pointer is refused, because the focused window notices that.
[[nodiscard]] InputGrab::Answer askWhoHoldsInput(Connection& connection);

/// On the main thread's connection.
class X11InputGrab final : public InputGrab {
public:
    X11InputGrab(Connection& connection, ForeignCover& cover)
        : connection_(connection), cover_(cover) {}

    [[nodiscard]] Answer ask() override { return askWhoHoldsInput(connection_); }

    [[nodiscard]] Handle onLikelyTaken(std::function<void()> callback) override {
        return cover_.onNewcomer(std::move(callback));
    }

private:
    Connection& connection_;
    ForeignCover& cover_;
};

} // namespace ravelo::x11
