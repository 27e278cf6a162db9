#pragma once

#include "monitor/UsageWindow.h"

#include <QJsonValue>

#include <optional>

namespace ravelo {

/// What of one window of the plan the user has been notified of.
struct PlanAlert {
    /// The highest threshold, in percent; zero if none.
    int level = 0;
    /// Of the window that reached it. If the level is zero: of the last one, which is over.
    std::optional<Date> resets;

    friend bool operator==(const PlanAlert&, const PlanAlert&) = default;
};

enum class PlanNews { none, high, veryHigh, reset };

inline constexpr int highLevel = 80;
inline constexpr int veryHighLevel = 95;

/// What is new at `now`, given what the user knows: each threshold once in a window, and its reset
/// if there was one.
[[nodiscard]] PlanNews planNews(const PlanAlert& known, const std::optional<UsageWindow>& window,
                                Date now);

/// What the user knows then.
[[nodiscard]] PlanAlert notifiedOf(PlanNews news, const PlanAlert& known,
                                   const std::optional<UsageWindow>& window, Date now);

/// For the preferences. Malformed values count as nothing known.
[[nodiscard]] QJsonValue encodeAlert(const PlanAlert& alert);
[[nodiscard]] PlanAlert decodeAlert(const QJsonValue& value);

} // namespace ravelo
