#pragma once

#include "base/Handle.h"

namespace ravelo::x11 {

/// Everything that depends on the display server and must be settled before the application object
/// exists, as environment that Qt reads. Where $DISPLAY is set the program runs on X11, in a
/// Wayland session through Xwayland; a platform without a display server ("offscreen") stays as
/// chosen.
///
/// To be let go once the application object exists: then what only its making reads is as before,
/// so that programs that are started from here do not get it.
[[nodiscard]] Handle prepareApplication();

} // namespace ravelo::x11
