#pragma once

#include "base/Handle.h"
#include "base/Result.h"

namespace ravelo::wayland {

/// Fails, in words for the user, if there is no compositor that this program can use directly: one
/// with a layer shell and data control. One round trip. Before the application object.
[[nodiscard]] Result<void> findCompositor();

/// Sets what Qt reads when the application object is made, and prepares for the end of the
/// compositor. Dropping the handle after that restores what the programs that we start must not
/// inherit.
[[nodiscard]] Handle prepareApplication();

} // namespace ravelo::wayland
