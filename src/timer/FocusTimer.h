#pragma once

#include "base/Scheduler.h"

#include <QString>

#include <optional>

namespace ravelo {

/// One countdown, running or over. It counts the time that really passes, also while the machine
/// sleeps: instants are those of Scheduler::uptime().
struct FocusTimer {
    QString label;
    Seconds duration{0};
    std::optional<Seconds> start; ///< Nothing while it does not run.

    /// A timer that begins now. Nothing where `minutes` is no length that can be waited for:
    /// negative, not a number, or longer than 30 years.
    [[nodiscard]] static std::optional<FocusTimer> started(const QString& label, double minutes,
                                                           Seconds now);

    [[nodiscard]] bool running() const { return start.has_value(); }

    /// Never negative. The whole length of a timer that does not run.
    [[nodiscard]] Seconds remaining(Seconds now) const;

    friend bool operator==(const FocusTimer&, const FocusTimer&) = default;
};

/// A length as a script writes it, "25" or "0.5". Nothing where it is no such number, or zero, or
/// no length of a timer.
[[nodiscard]] std::optional<double> writtenMinutes(const QString& written);

} // namespace ravelo
