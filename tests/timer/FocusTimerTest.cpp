#include "timer/FocusTimer.h"
#include "timer/TimerString.h"

#include <gtest/gtest.h>

#include <limits>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(TimerString, HasHoursOnlyIfNeeded) {
    struct Case {
        double seconds;
        QString text;
    };

    const Case cases[] = {{0, u"00:00"_s},        {59, u"00:59"_s},        {59.999, u"00:59"_s},
                          {90.4, u"01:30"_s},     {3599, u"59:59"_s},      {3600, u"1:00:00"_s},
                          {3661.5, u"1:01:01"_s}, {360000, u"100:00:00"_s}};
    for (const Case& c : cases) {
        EXPECT_EQ(timerString(Seconds(c.seconds)), c.text) << c.seconds << " s";
    }
}

TEST(FocusTimer, RefusesImpossibleLengths) {
    struct Case {
        double minutes;
        bool starts;
    };

    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double year = 365 * 24 * 60;
    const Case cases[] = {
        {0, true},          {0.5, true},        {29 * year, true},
        {31 * year, false}, {-0.001, false},    {1e300, false},
        {infinity, false},  {-infinity, false}, {std::numeric_limits<double>::quiet_NaN(), false}};
    for (const Case& c : cases) {
        EXPECT_EQ(FocusTimer::started({}, c.minutes, Seconds(7)).has_value(), c.starts)
            << c.minutes << " min";
    }
}

TEST(FocusTimer, TrimsItsLabel) {
    struct Case {
        QString given;
        QString kept;
    };

    const Case cases[] = {{u" \t two  words\t"_s, u"two  words"_s},
                          {u"\u00a0word"_s, u"word"_s},
                          {u"\nline "_s, u"\nline"_s},
                          {u" \t "_s, u""_s},
                          {u""_s, u""_s}};
    for (const Case& c : cases) {
        EXPECT_EQ(FocusTimer::started(c.given, 1, Seconds(7)).value().label, c.kept);
    }
}

} // namespace

} // namespace ravelo
