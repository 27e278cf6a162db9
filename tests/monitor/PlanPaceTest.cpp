#include "monitor/PlanPace.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

Date utc(const char* time) {
    return toDate(QDateTime::fromString(QString::fromLatin1(time), Qt::ISODate));
}

/// A day as it was recorded: figures in order of their arrival, from the session's window.
struct Day {
    const char* name;
    std::vector<std::pair<const char*, double>> figures; ///< "HH:mm" of the fifth of January.
    const char* resets;
    std::optional<double> perHour;
    const char* fullAt; ///< Empty if it lasts.
};

Date at(const char* time) {
    return utc(("2026-01-05T" + QByteArray(time) + ":00Z").constData());
}

TEST(PlanPace, followsRecordedDays) {
    const Day days[] = {
        {"steady work", {{"09:30", 10}, {"10:00", 20}, {"10:30", 30}}, "14:10", 20, "14:00"},
        {"steady work that lasts", {{"11:00", 10}, {"11:30", 15}, {"12:00", 20}}, "14:00", 10, ""},
        {"only the last hour counts",
         {{"09:00", 0}, {"10:00", 50}, {"11:00", 50}, {"12:00", 60}},
         "14:00",
         10,
         ""},
        {"between two figures",
         {{"10:00", 20}, {"12:00", 60}, {"12:30", 71}},
         "14:00",
         21,
         "13:52"},
        {"asleep for two hours", {{"09:30", 20}, {"11:30", 20}, {"12:00", 40}}, "14:00", 20, ""},
        {"a rest at the end", {{"10:00", 30}, {"10:30", 60}, {"11:30", 60}}, "14:00", 0, ""},
        {"the first figure, after an hour", {{"10:00", 30}}, "14:00", 30, "12:20"},
        {"the first figure, after five minutes", {{"09:05", 2}}, "14:00", {}, ""},
        {"a window that began meanwhile", {{"08:30", 95}, {"11:30", 15}}, "16:00", 30, "14:20"},
        {"an early reset",
         {{"10:00", 70}, {"10:30", 80}, {"11:00", 0}, {"12:00", 10}},
         "14:00",
         10,
         ""},
        {"rounded by another source",
         {{"11:00", 41.5}, {"11:30", 41}, {"12:00", 51.5}},
         "14:00",
         10,
         ""},
        {"the clock was set back",
         {{"11:00", 10}, {"12:30", 40}, {"11:45", 40}, {"12:00", 42}},
         "14:00",
         32,
         "13:48"},
        {"full", {{"10:00", 80}, {"11:00", 100}}, "14:00", 20, ""},
        {"over the limit", {{"10:00", 80}, {"11:00", 130}}, "14:00", 50, ""},
        {"no reset is known", {{"11:30", 10}, {"12:00", 30}}, "", 40, "13:45"},
        {"no reset, one figure", {{"11:30", 10}}, "", {}, ""},
        {"no time passes", {{"12:00", 10}, {"12:00", 30}}, "", {}, ""},
    };
    for (const Day& day : days) {
        PlanCourse course;
        PlanWindows windows;
        for (const auto& [time, percent] : day.figures) {
            // Figures of an earlier window say when that one resets.
            const std::optional<Date> resets =
                *day.resets ? std::optional(at(day.resets)) : std::nullopt;
            windows.session = UsageWindow{percent, resets};
            course.add(windows, at(time));
        }
        const std::optional<Pace> pace = course.pace(windows).session;
        ASSERT_EQ(pace.has_value(), day.perHour.has_value()) << day.name;
        if (!pace) {
            continue;
        }
        EXPECT_NEAR(pace->perHour, *day.perHour, 0.01) << day.name;
        const QString full =
            pace->fullAt ? toDateTime(*pace->fullAt).toUTC().toString(u"HH:mm"_s) : QString();
        EXPECT_EQ(full.toStdString(), day.fullAt) << day.name;
        EXPECT_TRUE(decodeCourse(encodeCourse(course)) == course) << day.name;
    }
}

TEST(PlanPace, ofTheWeekCountsWholeDays) {
    const Date begin = utc("2026-01-05T00:00:00Z");
    const auto later = [&](double hours) {
        return Date{begin.sinceReference + hours * 3600};
    };
    const Date resets = later(7 * 24);
    PlanCourse course;
    PlanWindows windows;
    // Eight hours a day, two percent each, then sixteen without.
    for (int quarter = 0; quarter < 4 * 58; ++quarter) {
        const double hours = quarter / 4.0;
        const double today = std::min(std::fmod(hours, 24.0), 8.0);
        windows.week = UsageWindow{2 * (8 * std::floor(hours / 24) + today), resets};
        course.add(windows, later(hours));
        if (hours < 24) {
            EXPECT_FALSE(course.pace(windows).week) << "a day is not over after " << hours;
        }
    }
    EXPECT_LE(course.week.samples().size(), 100u);
    const std::optional<Pace> pace = course.pace(windows).week;
    ASSERT_TRUE(pace);
    EXPECT_NEAR(pace->recent, 16, 0.7);
    ASSERT_TRUE(pace->fullAt);
    EXPECT_NEAR(pace->fullAt->sinceReference, later(58 + 52.0 / 16 * 24).sinceReference, 6 * 3600);
    EXPECT_EQ(fullText(pace, later(58), QTimeZone::utc()), u"at this pace full on Sat"_s);
}

TEST(PlanPace, isBoundedAndSurvivesNonsense) {
    UsageCourse course;
    for (int i = 0; i < 10'000; ++i) {
        course.add({Date{i * 1.0}, 0.01 * i}, sessionKind);
        ASSERT_LE(course.samples().size(), 100u);
    }
    for (const char* json : {"", "[]", "{}", R"({"five_hour":7,"seven_day":[[1],["a",2],[]]})"}) {
        EXPECT_TRUE(decodeCourse(json) == PlanCourse()) << json;
    }
    PlanCourse odd = decodeCourse(R"({"five_hour":[[1e300,1e300],[-1e300,-1e300],[0,5]]})");
    const PlanWindows windows{UsageWindow{1e300, Date{1e300}}, {}};
    odd.add(windows, Date{0});
    EXPECT_EQ(odd.pace(windows).session, std::nullopt);
}

TEST(PlanPace, isAText) {
    const auto text = [](const char* now, const std::optional<Date>& fullAt) {
        return fullText(Pace{1, 1, fullAt}, at(now), QTimeZone(3600)).toStdString();
    };
    EXPECT_EQ(text("10:00", at("10:49")), "at this pace full at 11:50") << "local time";
    EXPECT_EQ(text("10:00", {}), "");
    EXPECT_EQ(text("10:00", at("09:59")), "") << "the figures are too old";
    EXPECT_EQ(text("10:00", utc("2026-01-06T05:30:00Z")), "at this pace full at 06:30");
    EXPECT_EQ(text("10:00", utc("2026-01-08T05:30:00Z")), "at this pace full on Thu");
}

} // namespace
} // namespace ravelo
