#include "panel_fixture/PanelFixture.h"
#include "support/SignalCount.h"
#include "timer/TimerString.h"
#include "ui/theme/FittedTexts.h"

namespace ravelo {

namespace {

class ShownTimer : public testing::Test {
protected:
    ShownTimer() {
        QObject::connect(&face_, &TimerFace::changed, &face_,
                         [this] { figures_.append(face_.remaining()); });
        face_.setShown(true);
    }

    QTemporaryDir folder_;
    ManualScheduler scheduler_;
    ManualWorker worker_;
    MemoryPreferences preferences_;
    MemoryPasteboard pasteboard_{scheduler_};
    FakeAlertSound sound_;
    FakeDetachedJobs jobs_{scheduler_};
    Store store_{folder_.path(),
                 {scheduler_, worker_, preferences_, pasteboard_, sound_, jobs_, jobs_, jobs_, {}}};
    TimerFace face_{store_, scheduler_};
    QStringList figures_;
};

TEST_F(ShownTimer, showsEveryFigureOnceAndInTime) {
    for (const double length : {90.4, 60.0, 2.9996, 0.4, 3601.2, 0.0}) {
        figures_.clear();
        QStringList expected;
        for (int left = static_cast<int>(length); left >= 0; --left) {
            expected.append(timerString(Seconds(left)));
        }
        store_.startTimer({}, length / 60);
        while (store_.timerRunning()) {
            const double left = store_.timerRemaining();
            // The figure may be late by this much.
            const QStringList right = {timerString(Seconds(left)),
                                       timerString(Seconds(left + 0.002))};
            EXPECT_TRUE(right.contains(face_.remaining()))
                << qPrintable(face_.remaining()) << " with " << left << " s left";
            const double ring = face_.fraction() * length; // Never empty before the end.
            EXPECT_GE(ring, left - 0.01) << left << " s left";
            EXPECT_LE(ring, left + 1.01 + length / 360) << left << " s left";
            scheduler_.advance(Seconds(0.17));
        }
        EXPECT_EQ(figures_, expected) << length << " s";
    }
}

TEST_F(ShownTimer, sleepsWhileHidden) {
    scheduler_.advance(Seconds(10)); // Everything else is at rest.
    const int atRest = scheduler_.pending();
    store_.startTimer({}, 1);
    EXPECT_EQ(scheduler_.pending(), atRest + 2) << "the timer's end and the next figure";
    face_.setShown(false);
    EXPECT_EQ(scheduler_.pending(), atRest + 1);
    scheduler_.advance(Seconds(30.5));
    EXPECT_EQ(figures_, QStringList{u"01:00"_s});

    face_.setShown(true);
    EXPECT_EQ(figures_.last(), u"00:29"_s) << "at once";
    store_.stopTimer();
    EXPECT_EQ(scheduler_.pending(), atRest) << "no timer, nothing to wait for";
}

// Gap 10; each digit of the hidden count is 5 wide.
TEST(FittingTexts, showsAsManyAsThereIsRoomFor) {
    struct Case {
        const char* name;
        QList<double> widths;
        double room;
        Fit fit;
    };

    const Case cases[] = {
        {"none", {}, 100, {{}, 0}},
        {"all exactly", {30, 20, 30}, 100, {{30, 20, 30}, 0}},
        {"the last does not", {30, 20, 31}, 100, {{30, 20}, 1}},
        {"the number takes the room of one", {30, 50, 31}, 100, {{30}, 2}},
        {"a long number", QList<double>(12, 40), 64, {{40}, 11}},
        {"a long number takes more", QList<double>(12, 40), 59, {{39}, 11}},
        {"one is cut short", {300}, 100, {{100}, 0}},
        {"the first is cut short", {300, 10}, 100, {{85}, 1}},
        {"no room at all", {30, 10}, 12, {{0}, 1}},
        {"not behind a long one", {30, 300, 10}, 100, {{30}, 2}},
    };
    const auto rest = [](qsizetype hidden) {
        return hidden < 10 ? 5.0 : 10.0;
    };
    for (const Case& c : cases) {
        const Fit found = fit(c.widths, c.room, 10, rest);
        EXPECT_EQ(found.widths, c.fit.widths) << c.name;
        EXPECT_EQ(found.hidden, c.fit.hidden) << c.name;
    }
    EXPECT_EQ(fit({30, 60, 31}, 100, 10), (Fit{{30, 60}, 1})) << "room for a number not shown";
}

class Bar : public Panel {
protected:
    Bar() { world.store.setReminderOpen(true); }

    void show(const QStringList& reminders, const QString& notch = u"none"_s) {
        world.settings.macType.set(notch);
        world.store.setReminders(reminders);
        world.controller.positionCollapsed();
        view.window().resize(world.controller.frame().size().toSize());
        const QQuickItem* all = view.window().contentItem();
        ASSERT_TRUE(eventually([&] { return all->size() == world.controller.frame().size(); }));
        view.window().grabWindow();
    }

    /// The texts of a side, from left to right.
    QStringList texts(const QString& side) {
        QStringList found;
        collect(find(view.window().contentItem(), side), found);
        return found;
    }

private:
    static void collect(const QQuickItem* item, QStringList& into) {
        for (const QQuickItem* child : item->childItems()) {
            const QString text = child->property("text").toString();
            if (child->isVisible() && !text.isEmpty() && child->objectName() != u"icon") {
                into.append(text);
            }
            collect(child, into);
        }
    }
};

TEST_F(Bar, replacesTheHandleWhileThereIsSomethingToShow) {
    const auto seen = [this](const QString& name) {
        return find(view.window().contentItem(), name)->isVisible();
    };
    EXPECT_TRUE(seen(u"handle"_s));
    show({u"tea"_s});
    EXPECT_TRUE(seen(u"bar"_s));
    EXPECT_FALSE(seen(u"handle"_s));
    show({});
    EXPECT_FALSE(seen(u"bar"_s));
}

TEST_F(Bar, isSharedByTimerAndReminders) {
    const QStringList three = {u"a"_s, u"b"_s, u"c"_s};
    show(three);
    EXPECT_EQ(texts(u"left"_s), three) << "in the middle";
    show(three, u"notch"_s);
    EXPECT_EQ(texts(u"left"_s), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(texts(u"right"_s), QStringList{u"c"_s});

    world.store.startTimer(u"work"_s, 25);
    show(three);
    EXPECT_EQ(texts(u"left"_s), (QStringList{u"25:00"_s, u"work"_s}));
    EXPECT_EQ(texts(u"right"_s), three);
    world.store.setReminderOpen(false);
    show(three);
    EXPECT_EQ(texts(u"left"_s), QStringList{u"work"_s});
    EXPECT_EQ(texts(u"right"_s), QStringList{u"25:00"_s});
}

TEST_F(Bar, leavesNotchAndOtherSideFreeForAnyText) {
    const QString longText = QString(200, u'w');
    world.store.startTimer(longText, 25);
    for (const QString& notch : {u"none"_s, u"notch"_s}) {
        show({longText, u"b"_s}, notch);
        const double free = world.controller.notch() > 0 ? world.controller.notch() : 8;
        const double middle = world.controller.frame().width() / 2;
        const QQuickItem* left = find(view.window().contentItem(), u"left"_s);
        const QQuickItem* right = find(view.window().contentItem(), u"right"_s);
        EXPECT_LE(left->x() + left->width(), middle - free / 2) << qPrintable(notch);
        EXPECT_GE(right->x(), middle + free / 2) << qPrintable(notch);
        EXPECT_EQ(texts(u"right"_s).last(), u"+1"_s);
    }
}

TEST_F(Bar, isHighlightedForFiveSecondsAfterTheTimersEnd) {
    const auto bar = [this] {
        return find(view.window().contentItem(), u"bar"_s);
    };
    const auto isLit = [&] {
        return bar()->isVisible() && bar()->property("ended").toBool();
    };
    world.store.startTimer(u"work"_s, 0.1);
    show({});
    const auto dark = bar()->property("color").value<QColor>();
    world.scheduler.advance(Seconds(5.9));
    EXPECT_FALSE(isLit());
    world.scheduler.advance(Seconds(0.2));
    EXPECT_TRUE(isLit());
    EXPECT_NE(bar()->property("color").value<QColor>(), dark);
    EXPECT_EQ(texts(u"left"_s), QStringList{u"work"_s});
    EXPECT_EQ(texts(u"right"_s), QStringList{u"00:00"_s});
    world.scheduler.advance(Seconds(4.8));
    EXPECT_TRUE(isLit());
    world.scheduler.advance(Seconds(0.2));
    EXPECT_FALSE(bar()->isVisible());

    world.store.startTimer(u"work"_s, 0.1);
    world.scheduler.advance(Seconds(7));
    world.store.startTimer(u"more"_s, 1);
    EXPECT_FALSE(isLit()) << "another one runs";
    world.store.stopTimer();
    EXPECT_FALSE(bar()->isVisible()) << "stopped by hand";
}

TEST_F(Bar, doesNotCountWhileHidden) {
    world.store.startTimer(u"work"_s, 25);
    show({});
    const SignalCount emitted(view.features().focus.face(), &TimerFace::changed);
    world.scheduler.advance(Seconds(3));
    EXPECT_EQ(emitted.count(), 3);
    view.window().hide();
    world.scheduler.advance(Seconds(3));
    EXPECT_EQ(emitted.count(), 3) << "the window is hidden";
}

} // namespace

} // namespace ravelo
