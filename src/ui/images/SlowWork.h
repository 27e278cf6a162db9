#pragma once

#include <QThreadPool>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace ravelo {

/// A thread that reads the user's pictures one by one, newest request first. A read can hang
/// forever on a dead server: nobody waits for it, not even at exit, and later requests get another
/// thread, up to a maximum.
class SlowWork {
public:
    SlowWork();
    ~SlowWork();
    SlowWork(const SlowWork&) = delete;
    SlowWork& operator=(const SlowWork&) = delete;

    /// `job` must own all it uses. Any thread.
    void run(std::function<void()> job);

private:
    using Moment = std::chrono::steady_clock::time_point;

    QThreadPool* pool_;
    std::atomic<int> given_ = 0;
    std::shared_ptr<std::atomic<int>> waiting_ = std::make_shared<std::atomic<int>>(0);
    std::shared_ptr<std::atomic<Moment>> begun_ = std::make_shared<std::atomic<Moment>>(Moment());
};

} // namespace ravelo
