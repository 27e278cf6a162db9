#include "ui/controls/Toast.h"
#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(Toast, endsAtTheEarliestEnd) {
    struct Case {
        const char* name;
        QList<double> flashes;
        QList<std::pair<double, bool>> shown; ///< At these times.
    };

    const Case cases[] = {
        {"one", {1}, {{0.9, false}, {1.05, true}, {2.05, true}, {2.15, false}}},
        {"two at once", {1, 1.5}, {{2.05, true}, {2.15, false}, {3, false}}},
        {"the second's end removes the third",
         {1, 1.5, 2.2},
         {{2.15, false}, {2.25, true}, {2.55, true}, {2.65, false}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ManualScheduler scheduler;
        Toast toast(scheduler);
        std::vector<Handle> flashes;
        for (const double time : c.flashes) {
            flashes.push_back(scheduler.after(Seconds(time), [&] { toast.flashCopied(); }));
        }
        double now = 0;
        for (const auto& [time, shown] : c.shown) {
            scheduler.advance(Seconds(time - now));
            now = time;
            EXPECT_EQ(toast.text(), shown ? u"Copied ✓"_s : QString()) << time;
        }
    }
}

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

TEST(Toast, aResetCancelsEverything) {
    ManualScheduler scheduler;
    Toast toast(scheduler);
    toast.flashCopied();
    toast.reset();
    EXPECT_EQ(toast.text(), QString());
    EXPECT_EQ(scheduler.pending(), 0);
}

} // namespace

} // namespace ravelo
