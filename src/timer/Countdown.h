#pragma once

#include "base/Handle.h"
#include "timer/FocusTimer.h"

#include <QObject>

namespace ravelo {

class AlertSound;

/// Runs one focus timer at a time and plays the sound at its end. Main thread.
class Countdown : public QObject {
    Q_OBJECT

public:
    Countdown(Scheduler& scheduler, AlertSound& sound) : scheduler_(scheduler), sound_(sound) {}

    /// Replaces a running timer. Does nothing if the length is impossible; see
    /// `FocusTimer::started`.
    void start(const QString& label, double minutes);

    /// Keeps label and duration.
    void stop();

    /// The running timer or, if there is none, the last.
    [[nodiscard]] const FocusTimer& timer() const { return timer_; }

    [[nodiscard]] Seconds remaining() const { return timer_.remaining(scheduler_.uptime()); }

Q_SIGNALS:
    void changed(); ///< After each start, stop and end.
    void ended();   ///< By itself; `changed` follows.

private:
    void finish();

    Scheduler& scheduler_;
    AlertSound& sound_;
    FocusTimer timer_;
    Handle end_;
};

} // namespace ravelo
