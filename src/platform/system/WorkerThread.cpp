#include "platform/system/WorkerThread.h"

#include <utility>

namespace ravelo {

WorkerThread::WorkerThread() : thread_([this] { work(); }) {}

WorkerThread::~WorkerThread() {
    drain();
    {
        const std::lock_guard lock(mutex_);
        stop_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void WorkerThread::run(std::function<void()> job, std::function<void()> done) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back({std::move(job), std::move(done)});
    }
    wake_.notify_one();
}

void WorkerThread::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return stop_ || !tasks_.empty(); });
        if (tasks_.empty()) {
            return;
        }
        {
            const auto job = std::exchange(tasks_.front().job, nullptr);
            lock.unlock();
            job();
        } // Destroys what the job held, without the lock.
        lock.lock();
        auto done = std::move(tasks_.front().done);
        tasks_.pop_front();
        if (done) {
            done_.push_back(std::move(done));
            QMetaObject::invokeMethod(
                &context_, [this] { runDone(); }, Qt::QueuedConnection);
        }
        if (tasks_.empty()) {
            idle_.notify_all();
        }
    }
}

/// One at a time: `done` may drain, which runs those after it.
void WorkerThread::runDone() {
    std::unique_lock lock(mutex_);
    while (!done_.empty()) {
        auto done = std::move(done_.front());
        done_.pop_front();
        lock.unlock();
        std::exchange(done, nullptr)(); // Destroys what it held, without the lock.
        lock.lock();
    }
}

void WorkerThread::drain() {
    std::unique_lock lock(mutex_);
    while (!tasks_.empty() || !done_.empty()) {
        idle_.wait(lock, [this] { return tasks_.empty(); });
        lock.unlock();
        runDone();
        lock.lock();
    }
}

} // namespace ravelo
