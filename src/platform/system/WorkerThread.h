#pragma once

#include "platform/Worker.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace ravelo {

/// A thread that sleeps while there is nothing to do. Draining needs no event loop, so it also
/// works in atexit(3).
class WorkerThread final : public Worker {
public:
    WorkerThread();

    /// Drains.
    ~WorkerThread() override;

    void run(std::function<void()> job, std::function<void()> done = {}) override;
    void drain() override;

private:
    struct Task {
        std::function<void()> job;
        std::function<void()> done;
    };

    void work();
    void runDone();

    QObject context_; ///< For queued calls to the main thread.
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable idle_;
    std::deque<Task> tasks_; ///< The first is running, the others wait.
    std::deque<std::function<void()>> done_;
    bool stop_ = false;
    std::thread thread_;
};

} // namespace ravelo
