#pragma once

#include "base/Descriptor.h"
#include "base/Result.h"

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace ravelo {

/// Tasks for a thread that sleeps in poll().
class TaskQueue {
public:
    [[nodiscard]] static Result<std::unique_ptr<TaskQueue>> create();

    /// Any thread.
    void post(std::function<void()> task);

    /// Runs what has been posted, in that order. The sleeping thread only.
    void run();

    /// Readable while there is something to run.
    [[nodiscard]] int descriptor() const { return wakeUp_.number(); }

private:
    explicit TaskQueue(Descriptor wakeUp) : wakeUp_(std::move(wakeUp)) {}

    Descriptor wakeUp_; ///< An eventfd.
    std::mutex mutex_;  ///< Guards `tasks_`.
    std::vector<std::function<void()>> tasks_;
};

/// Milliseconds for poll(), rounded up: one that returns too early would spin. -1 is for ever.
[[nodiscard]] int pollTime(std::optional<std::chrono::steady_clock::time_point> deadline);

} // namespace ravelo
