#include "ui/Usage.h"

#include <algorithm>

namespace ravelo {

namespace {

UsageBand::Kind band(double percent) {
    if (percent < 60) {
        return UsageBand::Low;
    }
    return percent < 85 ? UsageBand::High : UsageBand::Critical;
}

} // namespace

UsageLine usageLine(const std::optional<UsageWindow>& window, Date now) {
    const double percent = window ? window->pct : 0;
    return {window.has_value(),
            percentText(window),
            resetText(window, now),
            std::clamp(percent / 100, 0.0, 1.0),
            band(percent),
            resetHasPassed(window, now),
            timeLeftText(window, now)};
}

} // namespace ravelo
