#include "ui/images/SlowWork.h"

#include <algorithm>
#include <utility>

#include <malloc.h>

namespace ravelo {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int endTimeout = 1000; ///< Milliseconds.
constexpr auto stuckAfter = std::chrono::seconds(3);
constexpr int maxThreads = 4;

} // namespace

SlowWork::SlowWork() : pool_(new QThreadPool) {
    pool_->setMaxThreadCount(1); // A list of pictures should not use all processors.
    pool_->setExpiryTimeout(1000);
}

void SlowWork::run(std::function<void()> job) {
    if (waiting_->fetch_add(1) == 0) {
        *begun_ = Clock::now(); // The previous job ended long ago and does not hang.
    }
    if (pool_->activeThreadCount() >= pool_->maxThreadCount() &&
        Clock::now() - begun_->load() > stuckAfter) {
        pool_->setMaxThreadCount(std::min(pool_->maxThreadCount() + 1, maxThreads));
    }
    // Newest first: a list asks from end to beginning, and last for what just came into view.
    auto work = [job = std::move(job), begun = begun_, waiting = waiting_]() mutable {
        *begun = Clock::now();
        job();
        job = nullptr;
        if (waiting->fetch_sub(1) == 1) {
            malloc_trim(0); // After large pictures a thread would keep up to 8 MB.
        }
    };
    pool_->start(std::move(work), ++given_);
}

SlowWork::~SlowWork() {
    if (pool_->waitForDone(endTimeout)) {
        delete pool_;
    } // Else it leaks with the hanging job until the process ends.
}

} // namespace ravelo
