#include "fakes/PanelWorld.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(HoverTick, restsWhileNothingMoves) {
    PanelWorld world;
    world.scheduler.advance(Seconds(1));
    const int questions = world.pointer.questions;
    world.scheduler.advance(Seconds(3600));
    EXPECT_EQ(world.pointer.questions, questions) << "an hour at rest";
    EXPECT_EQ(world.scheduler.pending(), 0);
}

TEST(HoverTick, restsWhileThePanelIsOpenAndThePointerElsewhere) {
    PanelWorld world;
    world.controller.toggle();
    world.moveTo(100, 800);
    world.scheduler.advance(Seconds(3));
    const int questions = world.pointer.questions;
    world.scheduler.advance(Seconds(3600));
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_EQ(world.pointer.questions, questions) << "an hour at rest";
}

/// Everything that may happen to a controller, applied to two of them alike.
struct Event {
    enum Kind {
        move,
        press,
        release,
        beginDrag,
        answerDrag,
        toggle,
        resize,
        unplug,
        replug,
        layout,
        timer,
        reminders,
        shelf,
        lock
    };

    Kind kind;
    QPointF place;
    bool flag;
};

using Log = std::vector<std::pair<double, QString>>;

class Twin {
public:
    explicit Twin(HoverTick::Rest rest) : world(rest) {
        QObject::connect(&world.controller, &NotchController::isOpenChanged, &world.controller,
                         [this] { note(); });
    }

    void apply(const Event& event) {
        way_ = event.kind == Event::toggle  ? u"by key"_s
               : event.kind == Event::press ? u"by press"_s
               : event.kind == Event::lock  ? u"by the lock"_s
                                            : QString();
        switch (event.kind) {
        case Event::move:
            world.pointer.moveTo(event.place);
            break;
        case Event::press:
            world.pointer.press();
            break;
        case Event::release:
            world.pointer.release();
            break;
        case Event::beginDrag:
            world.drags.begin(event.flag ? std::optional(true) : std::nullopt);
            break;
        case Event::answerDrag:
            world.drags.answer(event.flag);
            break;
        case Event::toggle:
            world.controller.toggle();
            break;
        case Event::resize:
            world.screens.change({screenOf(event.flag ? 1440 : 1920)});
            break;
        case Event::unplug:
            world.screens.change({});
            break;
        case Event::replug:
            world.screens.change({screenOf(1440)});
            break;
        case Event::layout:
            if (!world.controller.isOpen()) {
                world.controller.positionCollapsed();
            }
            break;
        case Event::timer:
            event.flag ? world.store.startTimer(u"Work"_s, 0.03) : world.store.stopTimer();
            break;
        case Event::reminders:
            world.store.setReminders({u"Call"_s});
            world.store.setReminderOpen(event.flag);
            break;
        case Event::shelf:
            event.flag ? world.store.removeFromShelf(world.drags.file)
                       : world.store.addToShelf({world.drags.file});
            break;
        case Event::lock:
            world.lock.setLocked(!event.flag);
            break;
        }
        way_.clear();
    }

    PanelWorld world;
    Log log;

private:
    static Screen screenOf(double width) {
        return {u"s"_s, QRectF(0, 0, width, 900), QRectF(0, 28, width, 872), {}, {}};
    }

    void note() {
        const bool open = world.controller.isOpen();
        QString how = way_;
        if (how.isEmpty()) {
            how = !open                               ? u"by delay"_s
                  : world.pointer.location->y() <= 14 ? u"by hover"_s
                                                      : u"by file drag"_s;
        }
        const double instant = std::round(world.scheduler.uptime().count() * 1e6) / 1e6;
        log.emplace_back(instant, (open ? u"opened "_s : u"closed "_s) + how);
    }

    QString way_;
};

class RandomInput {
public:
    explicit RandomInput(unsigned seed) : engine_(seed) {}

    Event next() {
        static constexpr Event::Kind kinds[] = {
            Event::move,      Event::move,       Event::move,    Event::move,    Event::move,
            Event::press,     Event::press,      Event::release, Event::release, Event::beginDrag,
            Event::beginDrag, Event::answerDrag, Event::toggle,  Event::resize,  Event::unplug,
            Event::replug,    Event::replug,     Event::layout,  Event::timer,   Event::reminders,
            Event::shelf,     Event::lock};
        return {kinds[below(std::size(kinds))], place(), below(3) > 0};
    }

    /// From a fraction of a tick to long enough for the tick to rest; never on its grid.
    Seconds pause() {
        static constexpr double pauses[] = {0.0031, 0.0173, 0.0457, 0.0907, 0.2311, 0.4079, 2.0033};
        return Seconds(pauses[below(std::size(pauses))]);
    }

private:
    QPointF place() {
        static constexpr QPointF places[] = {{720, 3},   {960, 5},   {720, 100}, {700, 139},
                                             {400, 130}, {300, 600}, {720, 400}, {1430, 2}};
        return places[below(std::size(places))];
    }

    size_t below(size_t count) {
        return std::uniform_int_distribution<size_t>(0, count - 1)(engine_);
    }

    std::mt19937 engine_;
};

/// The motion that ends the rest is looked at without waiting for the next tick.
void expectSameButSooner(const Log& ticking, const Log& resting) {
    ASSERT_EQ(ticking.size(), resting.size());
    for (size_t i = 0; i < ticking.size(); ++i) {
        const auto& [then, what] = ticking[i];
        EXPECT_EQ(resting[i].second, what);
        const double sooner = then - resting[i].first;
        if (what == u"opened by hover"_s || what == u"opened by file drag"_s) {
            EXPECT_TRUE(sooner >= 0 && sooner <= 0.0201)
                << what.toStdString() << " at " << then << ", sooner by " << sooner << " s";
        } else {
            EXPECT_EQ(sooner, 0) << what.toStdString() << " at " << then << ", sooner by " << sooner
                                 << " s";
        }
    }
}

TEST(HoverTick, restingChangesNoResultAndOpensSooner) {
    std::map<QString, int> ways;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        Twin ticking(HoverTick::Rest::never);
        Twin resting(HoverTick::Rest::whenStill);
        RandomInput input(seed);
        for (int step = 0; step < 500; ++step) {
            const Event event = input.next();
            const bool rested = resting.world.pointer.isAwaited();
            // Else it could have opened for a pointer that a tick would not have seen there.
            const Seconds pause = std::max(input.pause(), Seconds(rested ? 0.0457 : 0));
            for (Twin* const twin : {&ticking, &resting}) {
                twin->apply(event);
                twin->world.scheduler.advance(pause);
            }
            expectSameButSooner(ticking.log, resting.log);
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", step " << step;
            ASSERT_EQ(ticking.world.controller.frame(), resting.world.controller.frame())
                << "seed " << seed << ", step " << step;
        }
        EXPECT_LT(resting.world.pointer.questions, ticking.world.pointer.questions);
        for (const auto& [instant, what] : ticking.log) {
            ++ways[what];
        }
    }
    for (const char* way :
         {"opened by hover", "opened by file drag", "opened by key", "closed by press",
          "closed by key", "closed by delay", "closed by the lock"}) {
        const int times = ways[QString::fromLatin1(way)];
        std::printf("%s: %d\n", way, times);
        EXPECT_GT(times, 0) << way << " never happened: the input does not cover it";
    }
}

} // namespace
} // namespace ravelo
