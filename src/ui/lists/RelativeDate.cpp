#include "ui/lists/RelativeDate.h"

#include <unicode/reldatefmt.h>

#include <algorithm>
#include <cmath>

namespace ravelo {

namespace {

struct Distance {
    qint64 count = 0;
    URelativeDateTimeUnit unit = UDAT_REL_UNIT_SECOND;
};

/// Months have different lengths, so count them on the calendar.
int wholeMonths(const QDateTime& from, const QDateTime& to) {
    int months =
        (to.date().year() - from.date().year()) * 12 + to.date().month() - from.date().month();
    if (from.addMonths(months) > to) {
        --months;
    }
    return months;
}

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

/// How often the text can change; for units above a day, once a day.
qint64 unitOf(double seconds) {
    if (seconds < minute) {
        return 1;
    }
    if (seconds < hour) {
        return minute;
    }
    return seconds < day ? hour : day;
}

Distance distance(Date from, Date to) {
    const auto seconds = static_cast<qint64>(to.sinceReference - from.sinceReference);
    if (seconds < minute) {
        return {seconds, UDAT_REL_UNIT_SECOND};
    }
    if (seconds < hour) {
        return {seconds / minute, UDAT_REL_UNIT_MINUTE};
    }
    if (seconds < day) {
        return {seconds / hour, UDAT_REL_UNIT_HOUR};
    }
    if (seconds < 7 * day) {
        return {seconds / day, UDAT_REL_UNIT_DAY};
    }
    const int months = wholeMonths(toDateTime(from), toDateTime(to));
    if (months < 1) {
        return {seconds / (7 * day), UDAT_REL_UNIT_WEEK};
    }
    if (months < 12) {
        return {months, UDAT_REL_UNIT_MONTH};
    }
    return {months / 12, UDAT_REL_UNIT_YEAR};
}

} // namespace

struct RelativeDate::Formatter {
    UErrorCode status = U_ZERO_ERROR;
    icu::RelativeDateTimeFormatter icu;

    explicit Formatter(const icu::Locale& locale)
        : icu(locale, nullptr, UDAT_STYLE_SHORT, UDISPCTX_CAPITALIZATION_NONE, status) {}
};

RelativeDate::RelativeDate(const QLocale& locale)
    : formatter_(std::make_unique<Formatter>(icu::Locale(locale.name().toLatin1().constData()))) {}

RelativeDate::~RelativeDate() = default;

Seconds RelativeDate::untilChange(Date date, Date now) {
    const double apart = now.sinceReference - date.sinceReference;
    const auto unit = static_cast<double>(unitOf(std::abs(apart)));
    const double into = std::fmod(std::abs(apart), unit);
    return Seconds(apart < 0 ? into : unit - into); // The future comes closer.
}

QString RelativeDate::text(Date date, Date now) const {
    if (U_FAILURE(formatter_->status)) {
        return {};
    }
    const bool past = date <= now;
    const Distance apart = past ? distance(date, now) : distance(now, date);
    // ICU uses the sign of zero: "0 sec. ago" or "in 0 sec.".
    const double offset = std::copysign(static_cast<double>(apart.count), past ? -1.0 : 1.0);
    icu::UnicodeString text;
    UErrorCode status = U_ZERO_ERROR;
    formatter_->icu.formatNumeric(offset, apart.unit, text, status);
    return U_FAILURE(status) ? QString() : QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace ravelo
