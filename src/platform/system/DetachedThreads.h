#pragma once

#include "platform/DetachedJobs.h"
#include "platform/system/MainThread.h"

#include <atomic>
#include <memory>

namespace ravelo {

/// A new thread for each job, up to `max` at a time. Use separate instances for jobs that may hang
/// for different reasons, so that one kind cannot use up the threads of another.
class DetachedThreads final : public DetachedJobs {
public:
    explicit DetachedThreads(int max = 16) : max_(max) {}

    /// Does not wait for running jobs.
    ~DetachedThreads() override { mainThread_->close(); }

    [[nodiscard]] Handle run(std::function<void()> job, std::function<void()> done) override;

private:
    int max_;
    std::shared_ptr<MainThread> mainThread_ = std::make_shared<MainThread>();
    std::shared_ptr<std::atomic<int>> running_ = std::make_shared<std::atomic<int>>(0);
};

} // namespace ravelo
