#pragma once

#include "base/Scheduler.h"

#include <QtGlobal>

#include <memory>

class QSocketNotifier;

namespace ravelo {

/// Real time. All waits, the shortest too, share one kernel timer on the boot-time clock
/// (timerfd_create(2), CLOCK_BOOTTIME), set to the earliest of them: it goes on while the machine
/// sleeps, which a QTimer does not, and nothing wakes the processor but what falls due.
/// Main thread; made after the application object. Handles may outlive it.
class SystemScheduler final : public Scheduler {
public:
    SystemScheduler();
    ~SystemScheduler() override;

    [[nodiscard]] Date now() const override;
    [[nodiscard]] Seconds uptime() const override;
    [[nodiscard]] Handle after(Seconds delay, std::function<void()> action) override;

    /// Calls stay on the grid of the first one, however late each of them is. Those that were
    /// missed altogether are left out.
    [[nodiscard]] Handle every(Seconds interval, std::function<void()> action) override;

private:
    class Queue;

    std::shared_ptr<Queue> queue_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

/// The first moment after `now` that is a whole number of intervals behind `due`. Nanoseconds.
[[nodiscard]] qint64 nextOnGrid(qint64 due, qint64 interval, qint64 now);

} // namespace ravelo
