#pragma once

#include "base/Scheduler.h"
#include "platform/DetachedJobs.h"

#include <memory>
#include <optional>
#include <utility>

namespace ravelo {

/// Runs `job` detached and then `done` with its result, or with nothing if there is none within
/// `limit`. `done` is not called once the handle is dropped. Main thread.
template <typename T>
[[nodiscard]] Handle runTimed(DetachedJobs& jobs, Scheduler& scheduler, Seconds limit,
                              std::function<T()> job, std::function<void(std::optional<T>)> done) {
    struct Run {
        Handle job;
        Handle limit;
        std::function<void(std::optional<T>)> done;

        void finish(std::optional<T> found) {
            job.reset();
            limit.reset();
            if (const auto call = std::exchange(done, nullptr)) {
                call(std::move(found));
            }
        }
    };

    const auto run = std::make_shared<Run>();
    run->done = std::move(done);
    const auto found = std::make_shared<std::optional<T>>();
    run->limit = scheduler.after(limit, [run] { run->finish({}); });
    run->job = jobs.run([job = std::move(job), found] { *found = job(); },
                        [run, found] { run->finish(std::move(*found)); });
    return Handle([run] {
        run->done = nullptr;
        run->finish({});
    });
}

} // namespace ravelo
