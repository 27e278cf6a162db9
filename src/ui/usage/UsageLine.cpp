#include "ui/usage/UsageLine.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Translation context of this file.
struct PaceNotes {
    Q_DECLARE_TR_FUNCTIONS(ravelo::PaceNotes)
};

/// As the interface shows it.
QString paceText(const PacedWindow& paced, Date now) {
    return fullText(paced.pace, now, QTimeZone::systemTimeZone(), Wording::translated);
}

UsageBand::Kind band(double percent) {
    if (percent < highUsage) {
        return UsageBand::Low;
    }
    return percent < criticalUsage ? UsageBand::High : UsageBand::Critical;
}

/// Part of the window's time.
double passed(const PacedWindow& paced, Date now) {
    if (!paced.window || !paced.window->resets) {
        return -1;
    }
    const double left = paced.window->resets->sinceReference - now.sinceReference;
    const double part = 1 - left / paced.kind.length.count();
    return part >= 0 && part <= 1 ? part : -1;
}

/// "57 min." or "1 h 20 min." or "2 days".
QString span(double seconds) {
    const auto minutes = static_cast<int>(std::round(seconds / 60));
    if (minutes < 60) {
        return PaceNotes::tr("%1 min.").arg(minutes);
    }
    const int hours = minutes / 60;
    if (hours >= 48) {
        return PaceNotes::tr("%1 days").arg(hours / 24);
    }
    return hours >= 10 || minutes % 60 == 0
               ? PaceNotes::tr("%1 h").arg(hours)
               : PaceNotes::tr("%1 h %2 min.").arg(hours).arg(minutes % 60);
}

QString capitalised(const QString& text) {
    return text.left(1).toUpper() + text.mid(1);
}

} // namespace

UsageLine usageLine(const PacedWindow& paced, Date now) {
    const std::optional<UsageWindow>& window = paced.window;
    const double percent = window ? window->pct : 0;
    return {window.has_value(),
            percentText(window),
            resetText(window, now),
            std::clamp(percent / 100, 0.0, 1.0),
            band(percent),
            resetHasPassed(window, now),
            timeLeftText(window, now),
            paceText(paced, now),
            passed(paced, now)};
}

QStringList paceNotes(const PacedWindow& paced, Date now) {
    if (!paced.window || !paced.pace || resetHasPassed(paced.window, now)) {
        return {};
    }
    QStringList notes;
    const std::optional<Date> resets = paced.window->resets;
    const std::optional<Date> fullAt = comingFullAt(paced.pace, now);
    if (fullAt) {
        const QString full = capitalised(paceText(paced, now));
        notes << (resets ? PaceNotes::tr("%1, %2 before the reset")
                               .arg(full, span(resets->sinceReference - fullAt->sinceReference))
                         : full);
    } else if (resets && !paced.pace->fullAt && paced.window->pct < 100) {
        notes << PaceNotes::tr("Lasts until the reset");
    }
    const bool isDay = paced.kind.recent > Seconds(3600);
    notes << (isDay ? PaceNotes::tr("Last day: +%1%") : PaceNotes::tr("Last hour: +%1%"))
                 .arg(std::lround(paced.pace->recent));
    return notes;
}

} // namespace ravelo
