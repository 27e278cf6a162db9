// The closed panel as a bar: the figure of the timer, and what of the reminders fits.

#include "Input.h"
#include "Subjects.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/UsageWorld.h"
#include "support/Eventually.h"
#include "support/Told.h"
#include "timer/TimerString.h"
#include "ui/FittedTexts.h"
#include "ui/PanelView.h"
#include "ui/TimerFace.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

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

TEST_F(ShownTimer, tellsEveryFigureOnceAndAtItsTime) {
    for (const double length : {90.4, 60.0, 2.9996, 0.4, 3601.2, 0.0}) {
        figures_.clear();
        QStringList expected;
        for (int left = static_cast<int>(length); left >= 0; --left) {
            expected.append(timerString(Seconds(left)));
        }
        store_.startTimer({}, length / 60);
        while (store_.timerRunning()) {
            const double left = store_.timerRemaining();
            // The figure may be late by so much.
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

TEST_F(ShownTimer, doesNothingWhileNobodyLooks) {
    scheduler_.advance(Seconds(10)); // All else has come to rest.
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

struct FitCase {
    const char* name;
    QList<double> widths;
    double room;
    Fit fit;
};

void PrintTo(const FitCase& c, std::ostream* out) {
    *out << c.name;
}

class FittingTexts : public testing::TestWithParam<FitCase> {};

// The gap is 10; the number of the hidden takes 5 for each of its digits.
TEST_P(FittingTexts, showsAsManyAsThereIsRoomFor) {
    const auto rest = [](qsizetype hidden) {
        return hidden < 10 ? 5.0 : 10.0;
    };
    const Fit found = fit(GetParam().widths, GetParam().room, 10, rest);
    EXPECT_EQ(found.widths, GetParam().fit.widths);
    EXPECT_EQ(found.hidden, GetParam().fit.hidden);
}

INSTANTIATE_TEST_SUITE_P(
    All, FittingTexts,
    testing::Values(FitCase{"none", {}, 100, {{}, 0}},
                    FitCase{"allExactly", {30, 20, 30}, 100, {{30, 20, 30}, 0}},
                    FitCase{"lastDoesNot", {30, 20, 31}, 100, {{30, 20}, 1}},
                    FitCase{"numberTakesTheRoomOfOne", {30, 50, 31}, 100, {{30}, 2}},
                    FitCase{"longNumber", QList<double>(12, 40), 64, {{40}, 11}},
                    FitCase{"longNumberTakesMore", QList<double>(12, 40), 59, {{39}, 11}},
                    FitCase{"oneIsCutShort", {300}, 100, {{100}, 0}},
                    FitCase{"firstIsCutShort", {300, 10}, 100, {{85}, 1}},
                    FitCase{"noRoomAtAll", {30, 10}, 12, {{0}, 1}},
                    FitCase{"notBehindALongOne", {30, 300, 10}, 100, {{30}, 2}}));

TEST(FittingTexts, keepNoRoomForANumberThatIsNotShown) {
    EXPECT_EQ(fit({30, 60, 31}, 100, 10), (Fit{{30, 60}, 1}));
}

class Bar : public testing::Test {
protected:
    Bar() {
        view_.load(subjects(world_, plan_.usage), QLocale(u"en_US"_s));
        view_.window().show();
        world_.store.setReminderOpen(true);
    }

    void show(const QStringList& reminders, const QString& notch = u"none"_s) {
        world_.settings.setMacType(notch);
        world_.store.setReminders(reminders);
        world_.controller.positionCollapsed();
        view_.window().resize(world_.controller.frame().size().toSize());
        const QQuickItem* all = view_.window().contentItem();
        ASSERT_TRUE(eventually([&] { return all->size() == world_.controller.frame().size(); }));
        view_.window().grabWindow();
    }

    /// The texts of a side, from left to right.
    QStringList texts(const QString& side) {
        QStringList found;
        collect(find(view_.window().contentItem(), side), found);
        return found;
    }

    PanelWorld world_;
    UsageWorld plan_{world_.scheduler};
    PanelView view_;

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

TEST_F(Bar, takesTheHandlesPlaceWhileThereIsSomethingToShow) {
    const auto seen = [this](const QString& name) {
        return find(view_.window().contentItem(), name)->isVisible();
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

    world_.store.startTimer(u"work"_s, 25);
    show(three);
    EXPECT_EQ(texts(u"left"_s), (QStringList{u"25:00"_s, u"work"_s}));
    EXPECT_EQ(texts(u"right"_s), three);
    world_.store.setReminderOpen(false);
    show(three);
    EXPECT_EQ(texts(u"left"_s), QStringList{u"work"_s});
    EXPECT_EQ(texts(u"right"_s), QStringList{u"25:00"_s});
}

TEST_F(Bar, leavesNotchAndOtherSideAloneHoweverLongTheTexts) {
    const QString longText = QString(200, u'w');
    world_.store.startTimer(longText, 25);
    for (const QString& notch : {u"none"_s, u"notch"_s}) {
        show({longText, u"b"_s}, notch);
        const double free = world_.controller.notch() > 0 ? world_.controller.notch() : 8;
        const double middle = world_.controller.frame().width() / 2;
        const QQuickItem* left = find(view_.window().contentItem(), u"left"_s);
        const QQuickItem* right = find(view_.window().contentItem(), u"right"_s);
        EXPECT_LE(left->x() + left->width(), middle - free / 2) << qPrintable(notch);
        EXPECT_GE(right->x(), middle + free / 2) << qPrintable(notch);
        EXPECT_EQ(texts(u"right"_s).last(), u"+1"_s);
    }
}

TEST_F(Bar, isLitForFiveSecondsAfterTheTimersEnd) {
    const auto bar = [this] {
        return find(view_.window().contentItem(), u"bar"_s);
    };
    const auto isLit = [&] {
        return bar()->isVisible() && bar()->property("ended").toBool();
    };
    world_.store.startTimer(u"work"_s, 0.1);
    show({});
    const auto dark = bar()->property("color").value<QColor>();
    world_.scheduler.advance(Seconds(5.9));
    EXPECT_FALSE(isLit());
    world_.scheduler.advance(Seconds(0.2));
    EXPECT_TRUE(isLit());
    EXPECT_NE(bar()->property("color").value<QColor>(), dark);
    EXPECT_EQ(texts(u"left"_s), QStringList{u"work"_s});
    EXPECT_EQ(texts(u"right"_s), QStringList{u"00:00"_s});
    world_.scheduler.advance(Seconds(4.8));
    EXPECT_TRUE(isLit());
    world_.scheduler.advance(Seconds(0.2));
    EXPECT_FALSE(bar()->isVisible());

    world_.store.startTimer(u"work"_s, 0.1);
    world_.scheduler.advance(Seconds(7));
    world_.store.startTimer(u"more"_s, 1);
    EXPECT_FALSE(isLit()) << "another one runs";
    world_.store.stopTimer();
    EXPECT_FALSE(bar()->isVisible()) << "stopped by hand";
}

TEST_F(Bar, doesNotCountWhileItIsNotOnTheScreen) {
    world_.store.startTimer(u"work"_s, 25);
    show({});
    const Told told(view_.host().timerFace(), &TimerFace::changed);
    world_.scheduler.advance(Seconds(3));
    EXPECT_EQ(told.count(), 3);
    view_.window().hide();
    world_.scheduler.advance(Seconds(3));
    EXPECT_EQ(told.count(), 3) << "the window is hidden";
}

} // namespace

} // namespace ravelo
