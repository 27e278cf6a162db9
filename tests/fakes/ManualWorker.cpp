#include "fakes/ManualWorker.h"

#include <utility>

namespace ravelo {

void ManualWorker::run(std::function<void()> job, std::function<void()> done) {
    jobs_.push_back({std::move(job), std::move(done)});
    if (mode_ == Mode::atOnce) {
        drain();
    }
}

void ManualWorker::drain() {
    if (std::exchange(running_, true)) {
        return; // Called by a job's end: the loop below runs the new job in its turn.
    }
    while (!jobs_.empty()) {
        const Entry entry = std::move(jobs_.front());
        jobs_.pop_front();
        entry.job();
        if (entry.done) {
            entry.done();
        }
    }
    running_ = false;
}

} // namespace ravelo
