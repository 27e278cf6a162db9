#include "notices/PlanAlerts.h"

#include <QJsonArray>

#include <cmath>

namespace ravelo {

namespace {

/// The provider's answers differ by fractions of a second, a window by hours.
bool isSameWindow(const std::optional<Date>& one, const std::optional<Date>& other) {
    constexpr double tolerance = 600;
    return one && other && std::abs(one->sinceReference - other->sinceReference) < tolerance;
}

bool isOtherWindow(const std::optional<Date>& one, const std::optional<Date>& other) {
    return one && other && !isSameWindow(one, other);
}

int levelOf(const UsageWindow& window) {
    return window.pct >= veryHighLevel ? veryHighLevel : window.pct >= highLevel ? highLevel : 0;
}

} // namespace

PlanNews planNews(const PlanAlert& known, const std::optional<UsageWindow>& window, Date now) {
    if (known.level > 0 && known.resets && *known.resets <= now) {
        return PlanNews::reset; // Also if there are no newer figures.
    }
    const bool isOver = known.level == 0 && window && isSameWindow(known.resets, window->resets);
    if (!window || resetHasPassed(window, now) || isOver) {
        return PlanNews::none;
    }
    const int level = levelOf(*window);
    const bool hasReset = known.level > 0 && (isOtherWindow(known.resets, window->resets) ||
                                              window->pct < highLevel / 2.0);
    if (hasReset) {
        return PlanNews::reset;
    }
    if (level <= known.level) {
        return PlanNews::none;
    }
    return level == veryHighLevel ? PlanNews::veryHigh : PlanNews::high;
}

PlanAlert notifiedOf(PlanNews news, const PlanAlert& known,
                     const std::optional<UsageWindow>& window, Date now) {
    switch (news) {
    case PlanNews::high:
    case PlanNews::veryHigh:
        return {news == PlanNews::high ? highLevel : veryHighLevel,
                window ? window->resets : std::nullopt};
    case PlanNews::reset: // An early one may leave the time as it is.
        return {0, known.resets && *known.resets <= now ? known.resets : std::nullopt};
    case PlanNews::none:
        break;
    }
    return known;
}

QJsonValue encodeAlert(const PlanAlert& alert) {
    return QJsonArray{alert.level,
                      alert.resets ? QJsonValue(alert.resets->sinceReference) : QJsonValue()};
}

PlanAlert decodeAlert(const QJsonValue& value) {
    const int level = value[0].toInt();
    if (level != 0 && level != highLevel && level != veryHighLevel) {
        return {};
    }
    return {level, value[1].isDouble() ? std::optional(Date{value[1].toDouble()}) : std::nullopt};
}

} // namespace ravelo
