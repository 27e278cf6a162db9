#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Work that may never come back, as a look at a file on a network mount whose server is gone.
/// Each job has a thread that nobody waits for, not even the end of the program. Main thread.
class DetachedJobs {
public:
    virtual ~DetachedJobs() = default;

    /// Runs `job` off the main thread, then, later, `done` on it, unless the handle was dropped. A
    /// job touches nothing but the values it holds. Where too many hang already, `job` is left out:
    /// what it would have found out is unknown to `done`.
    [[nodiscard]] virtual Handle run(std::function<void()> job, std::function<void()> done) = 0;
};

} // namespace ravelo
