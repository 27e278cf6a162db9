#include "base/TaskQueue.h"

#include <algorithm>
#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

namespace ravelo {

Result<std::unique_ptr<TaskQueue>> TaskQueue::create() {
    Descriptor wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!wakeUp) {
        return failure(QStringLiteral("no eventfd for a thread's tasks"));
    }
    return std::unique_ptr<TaskQueue>(new TaskQueue(std::move(wakeUp)));
}

void TaskQueue::post(std::function<void()> task) {
    {
        const std::scoped_lock lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    const uint64_t one = 1;
    // Fails only if 2^64 - 2 wake-ups are pending.
    [[maybe_unused]] const auto written = ::write(wakeUp_.number(), &one, sizeof one);
}

void TaskQueue::run() {
    uint64_t count = 0;
    [[maybe_unused]] const auto got = ::read(wakeUp_.number(), &count, sizeof count);
    std::vector<std::function<void()>> tasks;
    {
        const std::scoped_lock lock(mutex_);
        tasks.swap(tasks_);
    }
    for (const auto& task : tasks) {
        task();
    }
}

int pollTime(std::optional<std::chrono::steady_clock::time_point> deadline) {
    if (!deadline) {
        return -1;
    }
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(*deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

} // namespace ravelo
