#pragma once

#include "platform/InputGrab.h"
#include "platform/x11/Connection.h"

namespace ravelo::x11 {

/// Tries the pointer first and then the keyboard, and gives back at once what it got. The keyboard
/// is tried only if the pointer is refused, because the focused window notices that.
[[nodiscard]] bool isInputHeldByAnother(Connection& connection);

/// On the main thread's connection.
class X11InputGrab final : public InputGrab {
public:
    explicit X11InputGrab(Connection& connection) : connection_(connection) {}

    [[nodiscard]] bool isHeldByAnother() override { return isInputHeldByAnother(connection_); }

private:
    Connection& connection_;
};

} // namespace ravelo::x11
