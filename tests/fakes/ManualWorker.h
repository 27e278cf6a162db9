#pragma once

#include "platform/Worker.h"

#include <deque>

namespace ravelo {

/// Runs each job when told to, or, by default, as soon as it is given.
class ManualWorker final : public Worker {
public:
    enum class Mode { atOnce, whenTold };

    explicit ManualWorker(Mode mode = Mode::atOnce) : mode_(mode) {}

    void run(std::function<void()> job, std::function<void()> done = {}) override;
    void drain() override;

    /// How many jobs are waiting.
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
