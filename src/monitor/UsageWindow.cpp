#include "monitor/UsageWindow.h"

#include "monitor/PeakInfo.h"

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

bool resetHasPassed(const std::optional<UsageWindow>& window, Date now) {
    return window && window->resets && *window->resets <= now;
}

Seconds untilTextChanges(const std::optional<UsageWindow>& window, Date now) {
    return window && window->resets
               ? untilDurChanges(window->resets->sinceReference - now.sinceReference)
               : Seconds::max();
}

QString percentText(const std::optional<UsageWindow>& window) {
    constexpr double maxPercent = 1e15; // Fits into 64 bits.
    return window
               ? QString::number(std::llround(std::clamp(window->pct, -maxPercent, maxPercent))) +
                     u'%'
               : u"\u2014"_s;
}

QString timeLeftText(const std::optional<UsageWindow>& window, Date now) {
    if (!window) {
        return u"sem dados"_s;
    }
    return window->resets ? dur(window->resets->sinceReference - now.sinceReference) : QString();
}

QString resetText(const std::optional<UsageWindow>& window, Date now) {
    const QString left = timeLeftText(window, now);
    return window && window->resets ? u"reseta em "_s + left : left;
}

} // namespace ravelo
