#include "ui/controls/Toast.h"
#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

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
