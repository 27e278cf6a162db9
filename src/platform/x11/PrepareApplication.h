#pragma once

#include "base/Handle.h"
#include "base/Result.h"

namespace ravelo::x11 {

/// Sets what Qt reads when the application object is made. If $DISPLAY is set the program runs on
/// X11, in a Wayland session through Xwayland; a platform without a display server ("offscreen")
/// stays as chosen. Dropping the handle after that restores what the programs that we start must
/// not inherit.
[[nodiscard]] Handle prepareApplication();

/// Fails, in words for the user, if there is no X server to run on: Qt would abort. A platform
/// without a display server needs none. Before `prepareApplication`.
[[nodiscard]] Result<void> findDisplay();

} // namespace ravelo::x11
