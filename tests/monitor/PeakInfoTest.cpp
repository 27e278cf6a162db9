#include "monitor/PeakInfo.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

QDateTime utc(const char* time) {
    return QDateTime::fromString(QString::fromLatin1(time), Qt::ISODate);
}

struct PeakCase {
    const char* now; ///< In UTC, like the transition.
    bool isPeak;
    const char* transition;
    const char* label; ///< Off peak, without a time of day.
};

// New York is 5 hours behind UTC in winter, 4 from 8 March to 1 November 2026.
constexpr PeakCase cases[] = {
    {"2026-01-05T12:59:59Z", false, "2026-01-05T13:00:00Z", "OFF-PEAK · peak in 0m"},
    {"2026-01-05T13:00:00Z", true, "2026-01-05T19:00:00Z", ""},
    {"2026-01-05T18:59:59Z", true, "2026-01-05T19:00:00Z", ""},
    {"2026-01-05T19:00:00Z", false, "2026-01-06T13:00:00Z", "OFF-PEAK · peak in 18h 0m"},
    {"2026-01-06T04:59:00Z", false, "2026-01-06T13:00:00Z", "OFF-PEAK · peak in 8h 1m"},
    {"2026-01-09T18:59:59Z", true, "2026-01-09T19:00:00Z", ""},
    {"2026-01-09T19:00:00Z", false, "2026-01-12T13:00:00Z", "OFF-PEAK · peak in 2d 18h"},
    {"2026-01-10T17:00:00Z", false, "2026-01-12T13:00:00Z", "OFF-PEAK · peak in 1d 20h"},
    {"2026-01-11T13:00:00Z", false, "2026-01-12T13:00:00Z", "OFF-PEAK · peak in 1d 0h"},
    {"2026-01-11T13:00:01Z", false, "2026-01-12T13:00:00Z", "OFF-PEAK · peak in 23h 59m"},
    // Across daylight-saving changes, each in the night to a Sunday.
    {"2026-03-06T13:00:00Z", true, "2026-03-06T19:00:00Z", ""},
    {"2026-03-06T19:00:00Z", false, "2026-03-09T12:00:00Z", "OFF-PEAK · peak in 2d 17h"},
    {"2026-03-08T07:00:00Z", false, "2026-03-09T12:00:00Z", "OFF-PEAK · peak in 1d 5h"},
    {"2026-03-09T11:59:59Z", false, "2026-03-09T12:00:00Z", "OFF-PEAK · peak in 0m"},
    {"2026-03-09T12:00:00Z", true, "2026-03-09T18:00:00Z", ""},
    {"2026-03-09T18:00:00Z", false, "2026-03-10T12:00:00Z", "OFF-PEAK · peak in 18h 0m"},
    {"2026-10-30T12:00:00Z", true, "2026-10-30T18:00:00Z", ""},
    {"2026-10-30T18:00:00Z", false, "2026-11-02T13:00:00Z", "OFF-PEAK · peak in 2d 19h"},
    {"2026-11-01T05:30:00Z", false, "2026-11-02T13:00:00Z", "OFF-PEAK · peak in 1d 7h"},
    {"2026-11-02T12:59:59Z", false, "2026-11-02T13:00:00Z", "OFF-PEAK · peak in 0m"},
    {"2026-11-02T13:00:00Z", true, "2026-11-02T19:00:00Z", ""},
};

TEST(Peak, isOnTheMorningsOfNewYorksWeekdays) {
    for (const PeakCase& c : cases) {
        const Date now = toDate(utc(c.now));
        const PeakInfo peak = PeakInfo::at(now);
        EXPECT_EQ(peak.isPeak, c.isPeak) << c.now;
        EXPECT_EQ(toDateTime(peak.transition), utc(c.transition)) << c.now;
        if (!c.isPeak) {
            EXPECT_EQ(peak.label(now, english), QString::fromUtf8(c.label)) << c.now;
        }
    }
}

TEST(Peak, endsByTheUsersOwnClock) {
    struct Case {
        const char* zone;
        QLocale locale;
        QString label;
    };

    const Case places[] = {
        {"America/Los_Angeles", english, u"PEAK · ends 11:00 AM"_s},
        {"America/New_York", english, u"PEAK · ends 2:00 PM"_s},
        {"Asia/Kolkata", english, u"PEAK · ends 12:30 AM"_s},
        {"Asia/Tokyo", QLocale(QLocale::Japanese), u"PEAK · ends 4:00 午前"_s},
    };
    const Date now = toDate(utc("2026-01-05T15:00:00Z"));
    for (const Case& c : places) {
        EXPECT_EQ(PeakInfo::at(now).label(now, c.locale, QTimeZone(c.zone)), c.label) << c.zone;
    }
}

TEST(Duration, showsItsTwoLargestUnits) {
    const std::pair<double, QString> durations[] = {
        {-1e300, u"0m"_s},
        {-61, u"0m"_s},
        {59.9, u"0m"_s},
        {42 * 60, u"42m"_s},
        {3599, u"59m"_s},
        {3600, u"1h 0m"_s},
        {5 * 3600 + 7 * 60, u"5h 7m"_s},
        {86399, u"23h 59m"_s},
        {86400, u"1d 0h"_s},
        {65 * 3600, u"2d 17h"_s},
        {1e300, u"694444444444d 10h"_s},
    };
    for (const auto& [seconds, text] : durations) {
        EXPECT_EQ(dur(seconds), text) << seconds;
    }
}

} // namespace

} // namespace ravelo
