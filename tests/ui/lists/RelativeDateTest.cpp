#include "ui/lists/RelativeDate.h"

#include <gtest/gtest.h>

#include <QTimeZone>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

Date at(int year, int month, int day, int hour = 12) {
    return toDate(QDateTime(QDate(year, month, day), QTime(hour, 0)));
}

struct DateCase {
    const char* name;
    Date date;
    Date now;
    QString text;
    QLocale locale = english;
};

constexpr double day = 86400;

class RelativeDateText : public testing::TestWithParam<DateCase> {};

TEST_P(RelativeDateText, tellsTheLargestWholeUnit) {
    const RelativeDate dates(GetParam().locale);
    EXPECT_EQ(dates.text(GetParam().date, GetParam().now), GetParam().text);
}

TEST_P(RelativeDateText, staysUntilItsNextChange) {
    const RelativeDate dates(GetParam().locale);
    const Seconds until = RelativeDate::untilChange(GetParam().date, GetParam().now);
    EXPECT_GE(until.count(), 0);
    EXPECT_LE(until.count(), day);
    const Date before{GetParam().now.sinceReference + std::max(0.0, until.count() - 0.001)};
    EXPECT_EQ(dates.text(GetParam().date, before), GetParam().text);
}

DateCase ago(const char* name, double seconds, const QString& text) {
    const Date now = at(2026, 5, 9);
    return {name, {now.sinceReference - seconds}, now, text};
}

INSTANTIATE_TEST_SUITE_P(
    All, RelativeDateText,
    testing::Values(ago("now", 0, u"0 sec. ago"_s), ago("halfASecond", 0.5, u"0 sec. ago"_s),
                    ago("lastSecond", 59.9, u"59 sec. ago"_s), ago("aMinute", 60, u"1 min. ago"_s),
                    ago("lastMinute", 3599, u"59 min. ago"_s), ago("anHour", 3600, u"1 hr. ago"_s),
                    ago("lastHour", day - 1, u"23 hr. ago"_s), ago("aDay", day, u"1 day ago"_s),
                    ago("lastDay", 7 * day - 1, u"6 days ago"_s),
                    ago("aWeek", 7 * day, u"1 wk. ago"_s),
                    ago("threeWeeks", 22 * day, u"3 wk. ago"_s),
                    ago("clockSetBack", -300, u"in 5 min."_s),
                    DateCase{"aShortMonth", at(2026, 2, 9), at(2026, 3, 9), u"1 mo. ago"_s},
                    DateCase{"notYetALongMonth", at(2026, 3, 9), at(2026, 4, 8), u"4 wk. ago"_s},
                    DateCase{"elevenMonths", at(2025, 5, 10), at(2026, 5, 9), u"11 mo. ago"_s},
                    DateCase{"aYear", at(2025, 5, 9), at(2026, 5, 9), u"1 yr. ago"_s},
                    DateCase{"years", at(2001, 5, 10), at(2026, 5, 9), u"24 yr. ago"_s},
                    DateCase{"german", at(2026, 5, 9, 10), at(2026, 5, 9), u"vor 2 Std."_s,
                             QLocale(QLocale::German, QLocale::Germany)},
                    DateCase{"portuguese", at(2026, 5, 7), at(2026, 5, 9), u"há 2 dias"_s,
                             QLocale(QLocale::Portuguese, QLocale::Brazil)}),
    [](const auto& row) { return row.param.name; });

} // namespace

} // namespace ravelo
