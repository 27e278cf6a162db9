#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Handles SIGTERM, SIGINT and SIGHUP by calling `callback` from the event loop. Call once per
/// process. Main thread.
[[nodiscard]] Handle onTerminationSignal(std::function<void()> callback);

} // namespace ravelo
