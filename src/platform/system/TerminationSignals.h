#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Calls `callback` from the event loop when the process is told to end by SIGTERM, SIGINT or
/// SIGHUP, which then end it no more by themselves. Once in the life of a process. Main thread.
[[nodiscard]] Handle onTerminationSignal(std::function<void()> callback);

} // namespace ravelo
