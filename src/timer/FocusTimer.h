#pragma once

#include "base/Scheduler.h"

#include <QString>

#include <optional>

namespace ravelo {

/// One countdown, running or over. Counts real time, also while the machine sleeps: instants are
/// those of Scheduler::uptime().
struct FocusTimer {
    QString label;
    Seconds duration{0};
    std::optional<Seconds> start; ///< Set while it runs.

    /// A timer that starts now. Nothing if `minutes` is negative, not a number, or more than 30
    /// years.
    [[nodiscard]] static std::optional<FocusTimer> started(const QString& label, double minutes,
                                                           Seconds now);

    [[nodiscard]] bool running() const { return start.has_value(); }

    /// Never negative. The whole length if the timer does not run.
    [[nodiscard]] Seconds remaining(Seconds now) const;

    friend bool operator==(const FocusTimer&, const FocusTimer&) = default;
};

/// A length as scripts write it: "25" or "0.5". Nothing if it is not a number, zero, or too long
/// for a timer.
[[nodiscard]] std::optional<double> writtenMinutes(const QString& written);

} // namespace ravelo
