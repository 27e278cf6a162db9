// What is told in words: how long ago, how much is used, and for how long.

#include "fakes/ManualScheduler.h"
#include "ui/RelativeDate.h"
#include "ui/Toast.h"
#include "ui/Usage.h"

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

struct UsageCase {
    const char* name;
    std::optional<UsageWindow> window;
    UsageLine line;
};

class UsageLineOf : public testing::TestWithParam<UsageCase> {};

TEST_P(UsageLineOf, aWindowOfThePlan) {
    const UsageLine line = usageLine(GetParam().window, Date{1000});
    const UsageLine& expected = GetParam().line;
    EXPECT_EQ(line.known, expected.known);
    EXPECT_EQ(line.percent, expected.percent);
    EXPECT_EQ(line.reset, expected.reset);
    EXPECT_DOUBLE_EQ(line.fraction, expected.fraction);
    EXPECT_EQ(line.band, expected.band);
    EXPECT_EQ(line.resetPassed, expected.resetPassed);
    QString left = expected.reset;
    EXPECT_EQ(line.left, left.remove(u"reseta em "_s));
}

UsageCase percent(const char* name, double value, const QString& text, double fraction,
                  UsageBand::Kind band) {
    return {name, UsageWindow{value, {}}, {true, text, {}, fraction, band}};
}

UsageCase minutes(const char* name, double left, const QString& reset) {
    return {name,
            UsageWindow{50, Date{1000 + left * 60}},
            {true, u"50%"_s, reset, 0.5, UsageBand::Low, left <= 0}};
}

INSTANTIATE_TEST_SUITE_P(
    All, UsageLineOf,
    testing::Values(
        UsageCase{"unknown", std::nullopt, {false, u"—"_s, u"sem dados"_s, 0, UsageBand::Low}},
        percent("none", 0, u"0%"_s, 0, UsageBand::Low),
        percent("halfRoundsUp", 41.5, u"42%"_s, 0.415, UsageBand::Low),
        percent("lastGreen", 59.9, u"60%"_s, 0.599, UsageBand::Low),
        percent("firstYellow", 60, u"60%"_s, 0.6, UsageBand::High),
        percent("lastYellow", 84.99, u"85%"_s, 0.8499, UsageBand::High),
        percent("firstRed", 85, u"85%"_s, 0.85, UsageBand::Critical),
        percent("beyond", 130, u"130%"_s, 1, UsageBand::Critical),
        minutes("over", -90, u"reseta em 0m"_s), minutes("left", 125, u"reseta em 2h 5m"_s)),
    [](const auto& row) { return row.param.name; });

struct ToastCase {
    const char* name;
    QList<double> flashes;
    QList<std::pair<double, bool>> seen; ///< When, and whether it is there.
};

class ToastTime : public testing::TestWithParam<ToastCase> {};

TEST_P(ToastTime, endsWithTheFirstEndThatComes) {
    ManualScheduler scheduler;
    Toast toast(scheduler);
    std::vector<Handle> flashes;
    for (const double time : GetParam().flashes) {
        flashes.push_back(scheduler.after(Seconds(time), [&] { toast.flashCopied(); }));
    }
    double now = 0;
    for (const auto& [time, there] : GetParam().seen) {
        scheduler.advance(Seconds(time - now));
        now = time;
        EXPECT_EQ(toast.text(), there ? u"Copied ✓"_s : QString()) << time;
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, ToastTime,
    testing::Values(
        ToastCase{"one", {1}, {{0.9, false}, {1.05, true}, {2.05, true}, {2.15, false}}},
        ToastCase{"twoAtOnce", {1, 1.5}, {{2.05, true}, {2.15, false}, {3, false}}},
        ToastCase{"theSecondsEndTakesTheThird",
                  {1, 1.5, 2.2},
                  {{2.15, false}, {2.25, true}, {2.55, true}, {2.65, false}}}),
    [](const auto& row) { return row.param.name; });

TEST(Toast, anOfferStaysTenSecondsBelowMessages) {
    ManualScheduler scheduler;
    Toast toast(scheduler);
    const auto shows = [&] {
        return toast.text() + u'|' + toast.action();
    };
    int acted = 0;
    toast.flashCopied();
    toast.offer(u"Deleted"_s, u"Undo"_s, [&] { ++acted; });
    scheduler.advance(Seconds(2));
    EXPECT_EQ(shows(), u"Deleted|Undo"_s) << "an older message's end took it away";
    toast.flashCopied();
    EXPECT_EQ(shows(), u"Copied ✓|"_s);
    scheduler.advance(Seconds(2));
    EXPECT_EQ(shows(), u"Deleted|Undo"_s);
    toast.setHeld(true);
    scheduler.advance(Seconds(60));
    EXPECT_EQ(shows(), u"Deleted|Undo"_s) << "its time goes on while it is pointed at";
    toast.setHeld(false);
    scheduler.advance(Seconds(5.9));
    EXPECT_EQ(shows(), u"Deleted|Undo"_s);
    scheduler.advance(Seconds(0.2));
    EXPECT_EQ(shows(), u"|"_s);
    EXPECT_FALSE(toast.act());

    toast.offer(u"Deleted"_s, u"Undo"_s, [&] { ++acted; });
    EXPECT_TRUE(toast.act());
    EXPECT_FALSE(toast.act()) << "twice";
    EXPECT_EQ(acted, 1);
}

TEST(Toast, aResetLeavesNothingToCome) {
    ManualScheduler scheduler;
    Toast toast(scheduler);
    toast.flashCopied();
    toast.reset();
    EXPECT_EQ(toast.text(), QString());
    EXPECT_EQ(scheduler.pending(), 0);
}

} // namespace

} // namespace ravelo
