#pragma once

#include "base/Scheduler.h"

#include <map>
#include <memory>

namespace ravelo {

/// Time that starts at a fixed instant and moves only when told to.
class ManualScheduler final : public Scheduler {
public:
    ManualScheduler();
    ~ManualScheduler() override;

    [[nodiscard]] Date now() const override;
    [[nodiscard]] Seconds uptime() const override;
    [[nodiscard]] Handle after(Seconds delay, std::function<void()> action) override;
    [[nodiscard]] Handle every(Seconds interval, std::function<void()> action) override;

    /// Moves both clocks on and runs what falls due, in order of its time.
    void advance(Seconds time);

    /// Moves the wall clock alone, as a user or the network would.
    void setNow(Date now);

    /// How much delayed and repeated work is waiting.
    [[nodiscard]] int pending() const;

private:
    struct Entry;
    using Queue = std::multimap<qint64, std::shared_ptr<Entry>>;

    Handle add(Seconds delay, Seconds interval, std::function<void()> action);

    // Whole microseconds: an interval added up a million times stays on its grid.
    qint64 uptime_ = 0;
    double wallOffset_ = 0;
    std::shared_ptr<Queue> queue_;
};

} // namespace ravelo
