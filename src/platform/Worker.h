#pragma once

#include <functional>

namespace ravelo {

/// Work that would stall the main thread (encoding, writing to disk), done one job after the other
/// in the order it was given. Main thread.
class Worker {
public:
    virtual ~Worker() = default;

    /// Runs `job` off the main thread, then `done`, if any, on the main thread. A job touches
    /// nothing but the values it holds.
    virtual void run(std::function<void()> job, std::function<void()> done = {}) = 0;

    /// Waits until every job that was given has run, and runs what they left to be done, also
    /// what that gives in turn. For the end of the program.
    virtual void drain() = 0;
};

} // namespace ravelo
