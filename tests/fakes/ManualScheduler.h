#pragma once

#include "base/Scheduler.h"

#include <map>
#include <memory>

namespace ravelo {

/// Time that starts at a fixed instant and moves only through `advance`.
class ManualScheduler final : public Scheduler {
public:
    ManualScheduler();
    ~ManualScheduler() override;

    [[nodiscard]] Date now() const override;
    [[nodiscard]] Seconds uptime() const override;
    [[nodiscard]] Handle after(Seconds delay, std::function<void()> action) override;
    [[nodiscard]] Handle every(Seconds interval, std::function<void()> action) override;

    /// Moves both clocks and runs what is due, in order.
    void advance(Seconds time);

    /// Moves only the wall clock, as a user or NTP would.
    void setNow(Date now);

    /// The number of delayed and repeated actions that wait.
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
