#pragma once

#include <QThreadPool>

#include <functional>

namespace ravelo {

/// A thread that reads the user's pictures, one after the other. A file may never be read, where a
/// server is gone: nobody waits for it, not even the end of the program.
class SlowWork {
public:
    SlowWork();
    ~SlowWork();
    SlowWork(const SlowWork&) = delete;
    SlowWork& operator=(const SlowWork&) = delete;

    /// `job` touches nothing but the values it holds. Any thread.
    void run(std::function<void()> job) { pool_->start(std::move(job)); }

private:
    QThreadPool* pool_;
};

} // namespace ravelo
