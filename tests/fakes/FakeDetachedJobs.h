#pragma once

#include "base/Scheduler.h"
#include "platform/DetachedJobs.h"

#include <utility>

namespace ravelo {

/// Runs each job when time has advanced by `takes`, or never.
class FakeDetachedJobs final : public DetachedJobs {
public:
    explicit FakeDetachedJobs(Scheduler& scheduler) : scheduler_(scheduler) {}

    [[nodiscard]] Handle run(std::function<void()> job, std::function<void()> done) override {
        ++given;
        return scheduler_.after(takes, [this, job = std::move(job), done = std::move(done)] {
            if (!hung) {
                job();
                done();
            }
        });
    }

    Seconds takes{};
    bool hung = false;
    int given = 0;

private:
    Scheduler& scheduler_;
};

} // namespace ravelo
