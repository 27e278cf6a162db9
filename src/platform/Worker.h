#pragma once

#include <functional>

namespace ravelo {

/// Runs work that would block the main thread (encoding, writing to disk), one job after the other
/// in the order given. Main thread.
class Worker {
public:
    virtual ~Worker() = default;

    /// Runs `job` off the main thread, then `done`, if any, on the main thread. A job uses only the
    /// values it holds.
    virtual void run(std::function<void()> job, std::function<void()> done = {}) = 0;

    /// Waits until all jobs have run, and runs their `done`s and the jobs that those start in turn.
    /// For the end of the program.
    virtual void drain() = 0;
};

} // namespace ravelo
