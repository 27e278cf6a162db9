#pragma once

#include "base/Handle.h"

namespace ravelo::gnome {

/// Sets the environment that Qt reads when the application object is made. Dropping the handle
/// restores it.
[[nodiscard]] Handle prepareApplication();

} // namespace ravelo::gnome
