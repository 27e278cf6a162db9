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
        const UsageLine line = usageLine({window}, Date{1000});
        EXPECT_EQ(line.known, expected.known);
        EXPECT_EQ(line.percent, expected.percent);
        EXPECT_EQ(line.reset, expected.reset);
        EXPECT_DOUBLE_EQ(line.fraction, expected.fraction);
        EXPECT_EQ(line.band, expected.band);
        EXPECT_EQ(line.resetPassed, expected.resetPassed);
        EXPECT_EQ(line.left, QString(expected.reset).remove(u"reseta em "_s));
    }
}

TEST(UsageLine, saysHowLongThePlanLasts) {
    const Date now{0};
    const UsageWindow session{71, Date{7500}};

    struct Case {
        PacedWindow paced;
        QString pace;
        QStringList notes;
    };

    const Case cases[] = {
        {{session, Pace{26, 26, Date{4080}}},
         u"at this pace full at "_s,
         {u"At this pace full at "_s, u"Last hour: +26%"_s}},
        {{session, Pace{4, 4.4, {}}}, {}, {u"Lasts until the reset"_s, u"Last hour: +4%"_s}},
        {{session}, {}, {}},
        {{UsageWindow{100, Date{7500}}, Pace{30, 30, {}}}, {}, {u"Last hour: +30%"_s}},
        {{UsageWindow{71, {}}, Pace{4, 4, {}}}, {}, {u"Last hour: +4%"_s}},
        {{UsageWindow{71, now}, Pace{4, 4, {}}}, {}, {}},
        {{UsageWindow{71, Date{3e5}}, Pace{1, 24, {}}, weekKind},
         {},
         {u"Lasts until the reset"_s, u"Last day: +24%"_s}},
    };
    for (const Case& c : cases) {
        const UsageLine line = usageLine(c.paced, now);
        const QStringList notes = paceNotes(c.paced, now);
        EXPECT_TRUE(line.pace.startsWith(c.pace) && line.pace.isEmpty() == c.pace.isEmpty())
            << qPrintable(line.pace);
        ASSERT_EQ(notes.size(), c.notes.size()) << qPrintable(notes.join(u'|'));
        for (qsizetype i = 0; i < notes.size(); ++i) {
            EXPECT_TRUE(notes[i].startsWith(c.notes[i])) << qPrintable(notes[i]);
        }
    }
    EXPECT_TRUE(paceNotes(cases[0].paced, now)[0].endsWith(u", 57 min. before the reset"_s));
    EXPECT_NEAR(usageLine({session}, now).passed, 1 - 7500.0 / 18000, 1e-9);
    EXPECT_LT(usageLine({UsageWindow{71, {}}}, now).passed, 0);
}

} // namespace

} // namespace ravelo
