#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"

#include <QString>

#include <optional>

namespace ravelo {

/// The usage of one of the plan's windows.
struct UsageWindow {
    double pct = 0;             ///< Percent: 42 for 42 %; over 100 if the plan was exceeded.
    std::optional<Date> resets; ///< When it resets, if known.

    friend bool operator==(const UsageWindow&, const UsageWindow&) = default;
};

/// Percent from which a window counts as rather full, and as nearly full.
inline constexpr double highUsage = 60;
inline constexpr double criticalUsage = 85;

/// Whether the window has reset, so that its percentage is out of date.
[[nodiscard]] bool resetHasPassed(const std::optional<UsageWindow>& window, Date now);

/// Time until one of the texts below changes; the maximum if never.
[[nodiscard]] Seconds untilTextChanges(const std::optional<UsageWindow>& window, Date now);

/// The plan's two windows, if known.
struct PlanWindows {
    std::optional<UsageWindow> session; ///< Five hours.
    std::optional<UsageWindow> week;    ///< Seven days.

    friend bool operator==(const PlanWindows&, const PlanWindows&) = default;
};

/// "42%", or a dash if unknown.
[[nodiscard]] QString percentText(const std::optional<UsageWindow>& window);

/// The time until the window resets; empty if that is unknown, and a text if the window is.
[[nodiscard]] QString timeLeftText(const std::optional<UsageWindow>& window, Date now);

/// The same as a sentence.
[[nodiscard]] QString resetText(const std::optional<UsageWindow>& window, Date now);

} // namespace ravelo
