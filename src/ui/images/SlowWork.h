#pragma once

#include <QThreadPool>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace ravelo {

/// A thread that reads the user's pictures, one after the other, the one asked for last first. A
/// file may never be read, where a server is gone: nobody waits for it, not even the end of the
/// program, and what is asked for later gets another thread, up to a few.
class SlowWork {
public:
    SlowWork();
    ~SlowWork();
    SlowWork(const SlowWork&) = delete;
    SlowWork& operator=(const SlowWork&) = delete;

    /// `job` touches nothing but the values it holds. Any thread.
    void run(std::function<void()> job);

private:
    using Moment = std::chrono::steady_clock::time_point;

    QThreadPool* pool_;
    std::atomic<int> given_ = 0;
    std::shared_ptr<std::atomic<int>> waiting_ = std::make_shared<std::atomic<int>>(0);
    std::shared_ptr<std::atomic<Moment>> begun_ = std::make_shared<std::atomic<Moment>>(Moment());
};

} // namespace ravelo
