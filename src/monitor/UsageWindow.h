#pragma once

#include "base/Date.h"

#include <QString>

#include <optional>

namespace ravelo {

/// How much of one window of the plan is used up.
struct UsageWindow {
    double pct = 0; ///< Percent: 42 for 42 %, and beyond 100 where the plan was exceeded.
    std::optional<Date> resets; ///< When it starts anew.

    friend bool operator==(const UsageWindow&, const UsageWindow&) = default;
};

/// Whether the window has been reset since, so that its percentage is out of date.
[[nodiscard]] bool resetHasPassed(const std::optional<UsageWindow>& window, Date now);

/// Both windows of the plan, each where it is known.
struct PlanWindows {
    std::optional<UsageWindow> session; ///< Five hours.
    std::optional<UsageWindow> week;    ///< Seven days.

    friend bool operator==(const PlanWindows&, const PlanWindows&) = default;
};

/// "42%", or a dash for what is not known.
[[nodiscard]] QString percentText(const std::optional<UsageWindow>& window);

/// How long until the window starts anew; empty where that is not known, and in words where the
/// window is not.
[[nodiscard]] QString timeLeftText(const std::optional<UsageWindow>& window, Date now);

/// The same as a sentence.
[[nodiscard]] QString resetText(const std::optional<UsageWindow>& window, Date now);

} // namespace ravelo
