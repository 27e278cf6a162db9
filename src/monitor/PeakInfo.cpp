#include "monitor/PeakInfo.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* peakContext = "ravelo::PeakText";
constexpr int firstHour = 8;
constexpr int endHour = 14;
constexpr int maxSearch = 8; ///< Days; no weekend is that long.

const QTimeZone& newYork() {
    static const QTimeZone zone("America/New_York");
    return zone;
}

bool isWeekday(QDate day) {
    return day.dayOfWeek() <= Qt::Friday;
}

Date at(int hour, QDate day) {
    return toDate(QDateTime(day, QTime(hour, 0), newYork()));
}

} // namespace

PeakInfo PeakInfo::at(Date now) {
    const QDate today = toDateTime(now).toTimeZone(newYork()).date();
    if (isWeekday(today) && now >= ravelo::at(firstHour, today) &&
        now < ravelo::at(endHour, today)) {
        return {true, ravelo::at(endHour, today)};
    }
    for (int i = 0; i <= maxSearch; ++i) {
        const QDate day = today.addDays(i);
        if (isWeekday(day) && ravelo::at(firstHour, day) > now) {
            return {false, ravelo::at(firstHour, day)};
        }
    }
    return {false, now}; // Only if the system lacks the time zone.
}

QString PeakInfo::label(Date now, const QLocale& locale, const QTimeZone& zone,
                        Wording wording) const {
    if (isPeak) {
        const QTime end = toDateTime(transition).toTimeZone(zone).time();
        const QString format =
            worded(wording, peakContext, QT_TRANSLATE_NOOP("ravelo::PeakText", "h:mm Ap"));
        return worded(wording, peakContext, QT_TRANSLATE_NOOP("ravelo::PeakText", "PEAK · ends %1"))
            .arg(locale.toString(end, format));
    }
    return worded(wording, peakContext,
                  QT_TRANSLATE_NOOP("ravelo::PeakText", "OFF-PEAK · peak in %1"))
        .arg(dur(transition.sinceReference - now.sinceReference));
}

Seconds untilDurChanges(double seconds) {
    constexpr double minute = 60;
    return seconds > 0 ? Seconds(std::fmod(seconds, minute)) : Seconds::max();
}

Seconds PeakInfo::untilLabelChanges(Date now) const {
    const Seconds left(transition.sinceReference - now.sinceReference);
    return isPeak ? std::max(left, Seconds(0)) : untilDurChanges(left.count());
}

QString dur(double seconds) {
    constexpr qint64 hour = 60;
    constexpr qint64 day = 24 * hour;
    constexpr double maxMinutes = 1e15; // Fits into 64 bits.
    const auto minutes = static_cast<qint64>(std::clamp(seconds / 60, 0.0, maxMinutes));
    if (minutes >= day) {
        return u"%1d %2h"_s.arg(minutes / day).arg(minutes % day / hour);
    }
    if (minutes >= hour) {
        return u"%1h %2m"_s.arg(minutes / hour).arg(minutes % hour);
    }
    return u"%1m"_s.arg(minutes);
}

} // namespace ravelo
