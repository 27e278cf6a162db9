#pragma once

#include "base/Handle.h"

namespace ravelo {

/// Sets what Qt reads when the application object of a Wayland client is made, and has the program
/// end by exit() when the compositor is gone. Before the application object; dropping the handle
/// after it restores what the programs that we start must not inherit.
[[nodiscard]] Handle prepareWaylandClient();

} // namespace ravelo
