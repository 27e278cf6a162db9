#include "ui/SlowWork.h"

namespace ravelo {

namespace {

constexpr int longestEnd = 1000; ///< Milliseconds.

} // namespace

SlowWork::SlowWork() : pool_(new QThreadPool) {
    pool_->setMaxThreadCount(1); // A list of pictures should not take all of the processor.
    pool_->setExpiryTimeout(1000);
}

SlowWork::~SlowWork() {
    if (pool_->waitForDone(longestEnd)) {
        delete pool_;
    } // Or it stays with its hanging job: only the end of the process ends that.
}

} // namespace ravelo
