#pragma once

#include "platform/Worker.h"

#include <deque>

namespace ravelo {

/// Runs each job in `drain` or, by default, at once.
class ManualWorker final : public Worker {
public:
    enum class Mode { atOnce, whenTold };

    explicit ManualWorker(Mode mode = Mode::atOnce) : mode_(mode) {}

    void run(std::function<void()> job, std::function<void()> done = {}) override;
    void drain() override;

    /// The number of jobs that wait.
    [[nodiscard]] int pending() const { return static_cast<int>(jobs_.size()); }

private:
    struct Entry {
        std::function<void()> job;
        std::function<void()> done;
    };

    Mode mode_;
    bool running_ = false;
    std::deque<Entry> jobs_;
};

} // namespace ravelo
