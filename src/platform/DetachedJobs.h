#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Work that may never come back, as a look at a file on a network mount whose server is gone.
/// Each job has a thread that nobody waits for, not even the end of the program. Main thread.
class DetachedJobs {
public:
    virtual ~DetachedJobs() = default;

    /// Runs `job` off the main thread, then `done` on it, unless the handle was dropped. A job
    /// touches nothing but the values it holds.
    [[nodiscard]] virtual Handle run(std::function<void()> job, std::function<void()> done) = 0;
};

} // namespace ravelo
