#include "ui/SlowWork.h"

#include <algorithm>
#include <utility>

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
    if (pool_->activeThreadCount() >= pool_->maxThreadCount() &&
        Clock::now() - begun_->load() > stuckAfter) {
        pool_->setMaxThreadCount(std::min(pool_->maxThreadCount() + 1, mostThreads));
    }
    // The last first: a list asks from its end to its begin, and for what came into sight last.
    const auto work = [job = std::move(job), begun = begun_] {
        *begun = Clock::now();
        job();
    };
    pool_->start(work, ++given_);
}

SlowWork::~SlowWork() {
    if (pool_->waitForDone(longestEnd)) {
        delete pool_;
    } // Or it stays with its hanging job: only the end of the process ends that.
}

} // namespace ravelo
