#include "monitor/UsageWindow.h"

#include "monitor/PeakInfo.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Translation context of this file.
struct UsageText {
    Q_DECLARE_TR_FUNCTIONS(ravelo::UsageText)
};

} // namespace

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
        return UsageText::tr("sem dados");
    }
    return window->resets ? dur(window->resets->sinceReference - now.sinceReference) : QString();
}

QString resetText(const std::optional<UsageWindow>& window, Date now) {
    const QString left = timeLeftText(window, now);
    return window && window->resets ? UsageText::tr("reseta em %1").arg(left) : left;
}

} // namespace ravelo
