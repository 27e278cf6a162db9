#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Work that may never return, such as reading a file on a network mount whose server is gone. Each
/// job has a detached thread, which even an exit does not wait for. Main thread.
class DetachedJobs {
public:
    virtual ~DetachedJobs() = default;

    /// Runs `job` off the main thread, then `done` on it, unless the handle was dropped. A job uses
    /// only the values it holds. If too many jobs hang already, `job` is skipped: `done` has to
    /// cope without its result.
    [[nodiscard]] virtual Handle run(std::function<void()> job, std::function<void()> done) = 0;
};

} // namespace ravelo
