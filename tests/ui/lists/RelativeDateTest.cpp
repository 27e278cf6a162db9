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
    Date date;
    Date now;
    QString text;
    QLocale locale = english;
};

constexpr double day = 86400;

DateCase ago(double seconds, const QString& text) {
    const Date now = at(2026, 5, 9);
    return {{now.sinceReference - seconds}, now, text};
}

TEST(RelativeDate, showsTheLargestWholeUnitUntilItsNextChange) {
    const DateCase cases[] = {
        ago(0, u"0 sec. ago"_s),
        ago(0.5, u"0 sec. ago"_s),
        ago(59.9, u"59 sec. ago"_s),
        ago(60, u"1 min. ago"_s),
        ago(3599, u"59 min. ago"_s),
        ago(3600, u"1 hr. ago"_s),
        ago(day - 1, u"23 hr. ago"_s),
        ago(day, u"1 day ago"_s),
        ago(7 * day - 1, u"6 days ago"_s),
        ago(7 * day, u"1 wk. ago"_s),
        ago(22 * day, u"3 wk. ago"_s),
        ago(-300, u"in 5 min."_s), // The clock was set back.
        {at(2026, 2, 9), at(2026, 3, 9), u"1 mo. ago"_s},
        {at(2026, 3, 9), at(2026, 4, 8), u"4 wk. ago"_s},
        {at(2025, 5, 10), at(2026, 5, 9), u"11 mo. ago"_s},
        {at(2025, 5, 9), at(2026, 5, 9), u"1 yr. ago"_s},
        {at(2001, 5, 10), at(2026, 5, 9), u"24 yr. ago"_s},
        {at(2026, 5, 9, 10), at(2026, 5, 9), u"vor 2 Std."_s, QLocale(u"de_DE"_s)},
        {at(2026, 5, 7), at(2026, 5, 9), u"há 2 dias"_s, QLocale(u"pt_BR"_s)},
    };
    for (const DateCase& c : cases) {
        SCOPED_TRACE(qPrintable(c.text));
        const RelativeDate dates(c.locale);
        EXPECT_EQ(dates.text(c.date, c.now), c.text);
        const double until = RelativeDate::untilChange(c.date, c.now).count();
        EXPECT_GE(until, 0);
        EXPECT_LE(until, day);
        const Date before{c.now.sinceReference + std::max(0.0, until - 0.001)};
        EXPECT_EQ(dates.text(c.date, before), c.text) << "just before the change";
    }
}

} // namespace

} // namespace ravelo
