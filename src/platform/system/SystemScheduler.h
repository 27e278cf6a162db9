#pragma once

#include "base/Scheduler.h"

#include <QtGlobal>

#include <memory>

class QSocketNotifier;

namespace ravelo {

/// Real time. All waits share one kernel timer on the boot-time clock (timerfd_create(2),
/// CLOCK_BOOTTIME), set to the earliest: unlike a QTimer it counts the time asleep, and it wakes
/// the processor only for what is due. Main thread; created after the application object. Handles
/// may outlive it.
class SystemScheduler final : public Scheduler {
public:
    SystemScheduler();
    ~SystemScheduler() override;

    [[nodiscard]] Date now() const override;
    [[nodiscard]] Seconds uptime() const override;
    [[nodiscard]] Handle after(Seconds delay, std::function<void()> action) override;

    /// Calls stay on the grid of the first one, however late each is. Missed ones are skipped.
    [[nodiscard]] Handle every(Seconds interval, std::function<void()> action) override;

private:
    class Queue;

    std::shared_ptr<Queue> queue_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

/// The first time after `now` that is a whole number of intervals after `due`. Nanoseconds.
[[nodiscard]] qint64 nextOnGrid(qint64 due, qint64 interval, qint64 now);

} // namespace ravelo
