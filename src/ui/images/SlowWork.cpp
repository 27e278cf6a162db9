#include "ui/images/SlowWork.h"

#include <algorithm>
#include <utility>

#include <malloc.h>

namespace ravelo {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int longestEnd = 1000; ///< Milliseconds.
constexpr auto stuckAfter = std::chrono::seconds(3);
constexpr int mostThreads = 4;

} // namespace

SlowWork::SlowWork() : pool_(new QThreadPool) {
    pool_->setMaxThreadCount(1); // A list of pictures should not take all of the processor.
    pool_->setExpiryTimeout(1000);
}

void SlowWork::run(std::function<void()> job) {
    if (waiting_->fetch_add(1) == 0) {
        *begun_ = Clock::now(); // What ran last, long ago, does not hang.
    }
    if (pool_->activeThreadCount() >= pool_->maxThreadCount() &&
        Clock::now() - begun_->load() > stuckAfter) {
        pool_->setMaxThreadCount(std::min(pool_->maxThreadCount() + 1, mostThreads));
    }
    // The last first: a list asks from its end to its begin, and for what came into sight last.
    const auto work = [job = std::move(job), begun = begun_, waiting = waiting_]() mutable {
        *begun = Clock::now();
        job();
        job = nullptr;
        if (waiting->fetch_sub(1) == 1) {
            malloc_trim(0); // Whole pictures were read; the process keeps up to 8 MB a thread.
        }
    };
    pool_->start(work, ++given_);
}

SlowWork::~SlowWork() {
    if (pool_->waitForDone(longestEnd)) {
        delete pool_;
    } // Or it stays with its hanging job: only the end of the process ends that.
}

} // namespace ravelo
