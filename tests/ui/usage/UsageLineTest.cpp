#include "ui/usage/UsageLine.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

} // namespace ravelo
