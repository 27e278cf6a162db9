#pragma once

#include "platform/x11/connection/Connection.h"

#include <QStringList>

namespace ravelo::x11 {

/// Instance and class (WM_CLASS, ICCCM 4.1.2.5) of the program that owns a selection: of the
/// owner's window, of its client leader, or of another window of the same client. Owners without
/// windows, such as command-line tools, get those of the active window. Two round trips at most.
[[nodiscard]] QStringList ownerNames(Connection& connection, const OwnClient& clients,
                                     xcb_window_t owner);

} // namespace ravelo::x11
