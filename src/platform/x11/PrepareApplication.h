#pragma once

#include "base/Handle.h"
#include "base/Result.h"

namespace ravelo::x11 {

/// Everything that depends on the display server and must be settled before the application object
/// exists, as environment that Qt reads. Where $DISPLAY is set the program runs on X11, in a
/// Wayland session through Xwayland; a platform without a display server ("offscreen") stays as
/// chosen.
///
/// To be let go once the application object exists: then what only its making reads is as before,
/// so that programs that are started from here do not get it.
[[nodiscard]] Handle prepareApplication();

/// Fails, in words for the user, if there is no X server to run on: Qt would abort. A platform
/// without a display server needs none. Before `prepareApplication`.
[[nodiscard]] Result<void> findDisplay();

} // namespace ravelo::x11
