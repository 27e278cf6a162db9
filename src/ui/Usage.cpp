#include "ui/Usage.h"

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

UsageBand::Kind band(double percent) {
    if (percent < 60) {
        return UsageBand::Low;
    }
    return percent < 85 ? UsageBand::High : UsageBand::Critical;
}

QString timeLeft(const std::optional<Date>& resets, Date now) {
    if (!resets) {
        return {};
    }
    constexpr qint64 hour = 60;
    constexpr qint64 day = 24 * hour;
    const double seconds = resets->sinceReference - now.sinceReference;
    const auto minutes = std::max<qint64>(static_cast<qint64>(seconds / 60), 0);
    if (minutes >= day) {
        return u"reseta em %1d %2h"_s.arg(minutes / day).arg(minutes % day / hour);
    }
    if (minutes >= hour) {
        return u"reseta em %1h %2m"_s.arg(minutes / hour).arg(minutes % hour);
    }
    return u"reseta em %1m"_s.arg(minutes);
}

} // namespace

UsageLine usageLine(const std::optional<UsageWindow>& window, Date now) {
    if (!window) {
        return {false, u"\u2014"_s, u"sem dados"_s, 0, UsageBand::Low};
    }
    return {true, QString::number(std::llround(window->percent)) + u'%',
            timeLeft(window->resets, now), std::clamp(window->percent / 100, 0.0, 1.0),
            band(window->percent)};
}

} // namespace ravelo
