#pragma once

#include "platform/DetachedJobs.h"
#include "platform/system/MainThread.h"

#include <atomic>
#include <memory>

namespace ravelo {

/// A new thread for each job, up to a good many of them.
class DetachedThreads final : public DetachedJobs {
public:
    /// Leaves those that still run to themselves.
    ~DetachedThreads() override { mainThread_->close(); }

    [[nodiscard]] Handle run(std::function<void()> job, std::function<void()> done) override;

private:
    std::shared_ptr<MainThread> mainThread_ = std::make_shared<MainThread>();
    std::shared_ptr<std::atomic<int>> running_ = std::make_shared<std::atomic<int>>(0);
};

} // namespace ravelo
