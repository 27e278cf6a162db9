#include "ui/usage/UsageLine.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

UsageWindow resetsIn(double minutes) {
    return {50, Date{1000 + minutes * 60}};
}

TEST(UsageLine, showsAWindowOfThePlan) {
    const std::pair<std::optional<UsageWindow>, UsageLine> cases[] = {
        {{}, {false, u"—"_s, u"sem dados"_s, 0, UsageBand::Low}},
        {UsageWindow{0, {}}, {true, u"0%"_s, {}, 0, UsageBand::Low}},
        {UsageWindow{41.5, {}}, {true, u"42%"_s, {}, 0.415, UsageBand::Low}},
        {UsageWindow{59.9, {}}, {true, u"60%"_s, {}, 0.599, UsageBand::Low}},
        {UsageWindow{60, {}}, {true, u"60%"_s, {}, 0.6, UsageBand::High}},
        {UsageWindow{84.99, {}}, {true, u"85%"_s, {}, 0.8499, UsageBand::High}},
        {UsageWindow{85, {}}, {true, u"85%"_s, {}, 0.85, UsageBand::Critical}},
        {UsageWindow{130, {}}, {true, u"130%"_s, {}, 1, UsageBand::Critical}},
        {resetsIn(-90), {true, u"50%"_s, u"reseta em 0m"_s, 0.5, UsageBand::Low, true}},
        {resetsIn(125), {true, u"50%"_s, u"reseta em 2h 5m"_s, 0.5, UsageBand::Low}},
    };
    for (const auto& [window, expected] : cases) {
        SCOPED_TRACE(qPrintable(expected.percent + u' ' + expected.reset));
        const UsageLine line = usageLine(window, Date{1000});
        EXPECT_EQ(line.known, expected.known);
        EXPECT_EQ(line.percent, expected.percent);
        EXPECT_EQ(line.reset, expected.reset);
        EXPECT_DOUBLE_EQ(line.fraction, expected.fraction);
        EXPECT_EQ(line.band, expected.band);
        EXPECT_EQ(line.resetPassed, expected.resetPassed);
        EXPECT_EQ(line.left, QString(expected.reset).remove(u"reseta em "_s));
    }
}

} // namespace

} // namespace ravelo
