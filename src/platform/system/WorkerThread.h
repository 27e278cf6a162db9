#pragma once

#include "platform/Worker.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace ravelo {

/// A thread of its own, asleep while there is nothing to do. Draining needs no event loop, so that
/// it also works while the process is on its way out (atexit(3)).
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

    QObject context_; ///< Brings the ends of jobs to the main thread.
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable idle_;
    std::deque<Task> tasks_; ///< The first is being worked on, the others wait.
    std::deque<std::function<void()>> done_;
    bool stop_ = false;
    std::thread thread_;
};

} // namespace ravelo
