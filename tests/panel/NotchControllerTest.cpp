#include "fakes/PanelWorld.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

// The middle of the screen is at x 720.
TEST(NotchController, opensOnTheFirstTickInAZoneThatIsLargerForFiles) {
    struct Case {
        const char* name;
        QPointF pointer;
        bool opens;
        std::optional<bool> files = {}; ///< Dragged.
        bool drags = files.has_value();
    };

    const Case cases[] = {{"middle", {720, 0}, true},
                          {"lowest row", {720, 14}, true},
                          {"below", {720, 14.5}, false},
                          {"leftmost", {560, 3}, true},
                          {"rightmost", {880, 3}, true},
                          {"left of it", {559.5, 3}, false},
                          {"right of it", {880.5, 3}, false},
                          {"files in the lowest row", {720, 140}, true, true},
                          {"files below", {720, 140.5}, false, true},
                          {"files, leftmost", {420, 100}, true, true},
                          {"files left of it", {419.5, 100}, false, true},
                          {"text", {720, 100}, false, false},
                          {"a silent source", {720, 100}, false, {}, true},
                          {"text in the hot zone", {720, 5}, true, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        PanelWorld world;
        if (c.drags) {
            world.beginDrag(c.files);
        }
        world.moveTo(c.pointer.x(), c.pointer.y());
        EXPECT_EQ(world.controller.isOpen(), c.opens);
        EXPECT_EQ(world.window.size, c.opens ? QSizeF(927, 560) : QSizeF(200, 12));
    }
}

TEST(NotchController, aDragThatBeganWithTheButtonsUpDoesNotOpen) {
    PanelWorld world;
    world.drags.begin(true);
    world.scheduler.advance(tick);
    world.pointer.press();
    world.moveTo(720, 100);
    EXPECT_FALSE(world.controller.isOpen()) << "the count was seen while no button was down";
}

TEST(NotchController, aSourceThatAnswersLateOpensUnderAPointerAtRest) {
    PanelWorld world;
    world.beginDrag(std::nullopt);
    world.moveTo(720, 100);
    world.scheduler.advance(Seconds(5));
    ASSERT_FALSE(world.controller.isOpen());
    world.drags.answer(true);
    world.scheduler.advance(tick);
    EXPECT_TRUE(world.controller.isOpen());
}

TEST(NotchController, closesOnAPressElsewhereOnly) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.moveTo(500, 300);
    world.pointer.press();
    EXPECT_TRUE(world.controller.isOpen()) << "a press on the panel";
    world.pointer.release();
    world.moveTo(100, 800);
    world.scheduler.advance(Seconds(10));
    EXPECT_TRUE(world.controller.isOpen()) << "outside, for longer than the delayed close takes";
    world.pointer.press();
    EXPECT_FALSE(world.controller.isOpen());
    EXPECT_EQ(world.controller.frame(), QRectF(620, 0, 200, 12));
}

TEST(NotchController, aPressThatIsHeardLateCountsWhereItWas) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.moveTo(100, 800);
    world.pointer.pressedAt(QPointF(500, 300));
    EXPECT_TRUE(world.controller.isOpen()) << "a press on the panel";
    world.moveTo(500, 300);
    world.pointer.pressedAt(QPointF(100, 800));
    EXPECT_FALSE(world.controller.isOpen()) << "a press elsewhere";
}

TEST(NotchController, hasItsOutlineBeforeItGrows) {
    PanelWorld world;
    world.moveTo(720, 5);
    EXPECT_TRUE(world.window.isCovered) << "a click would fall through";
    world.controller.collapse();
    EXPECT_FALSE(world.window.isCovered) << "it is cut before it is smaller";
}

TEST(NotchController, aPressInOurOwnWindowDoesNotClose) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.moveTo(100, 800);
    world.pointer.overOwnWindow = true;
    world.pointer.press();
    EXPECT_TRUE(world.controller.isOpen());
    world.pointer.release();
    world.pointer.overOwnWindow = false;
    world.pointer.press();
    EXPECT_FALSE(world.controller.isOpen());
}

TEST(NotchController, closesSoonAfterTheLastScreenHasGone) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.moveTo(100, 800);
    const auto screens = world.screens.screens;
    world.screens.change({});
    world.scheduler.advance(Seconds(0.34));
    EXPECT_TRUE(world.controller.isOpen());
    world.scheduler.advance(Seconds(0.03));
    EXPECT_FALSE(world.controller.isOpen()) << "0.35 s later";
    world.screens.change(screens);
    EXPECT_EQ(world.window.size, QSizeF(200, 12));
}

TEST(NotchController, followsScreensWhileCollapsedAndWhileOpen) {
    PanelWorld world;
    const Screen wide{u"wide"_s, QRectF(0, 0, 1920, 1080), QRectF(0, 0, 1920, 1080), {}, {}};
    world.screens.change({wide});
    EXPECT_EQ(world.controller.frame(), QRectF(860, 0, 200, 12));
    world.moveTo(960, 5);
    ASSERT_TRUE(world.controller.isOpen());
    const Screen narrow{u"narrow"_s, QRectF(0, 0, 1000, 800), QRectF(0, 0, 1000, 800), {}, {}};
    world.screens.change({narrow});
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_EQ(world.controller.frame(), QRectF(36.5, 0, 927, 560));
    EXPECT_EQ(world.window.screen, u"narrow"_s);
}

TEST(NotchController, staysOnItsScreenWhenAnotherComes) {
    PanelWorld world;
    const Screen right{
        u"right"_s, QRectF(1440, 0, 1920, 1080), QRectF(1440, 0, 1920, 1080), {}, {}};
    world.controller.toggle();
    world.moveTo(2000, 500);
    auto screens = world.screens.screens;
    screens.push_back(right);
    world.screens.change(screens);
    EXPECT_EQ(world.window.screen, u"one"_s) << "the user types into it there";
    world.store.addToShelf({QUrl(u"file:///a"_s)});
    EXPECT_EQ(world.window.screen, u"one"_s) << "it grows for a file";
    EXPECT_EQ(world.window.size.height(), 700);
    world.screens.change({right});
    EXPECT_EQ(world.window.screen, u"right"_s) << "its screen is gone";
}

TEST(NotchController, aNewWidthCountsFromTheNextOpening) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.settings.panelWidth.set(700);
    world.scheduler.advance(Seconds(1));
    EXPECT_EQ(world.window.size, QSizeF(927, 560));
    world.controller.collapse();
    world.controller.positionExpanded();
    EXPECT_EQ(world.window.size, QSizeF(700, 560));
}

TEST(NotchController, dismissedUnderThePointerItWaitsUntilThePointerHasLeft) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.controller.toggle();
    world.moveTo(730, 6);
    world.scheduler.advance(Seconds(60));
    EXPECT_FALSE(world.controller.isOpen()) << "the pointer never left the zone";
    world.moveTo(720, 300);
    world.moveTo(720, 5);
    EXPECT_TRUE(world.controller.isOpen());

    world.controller.dismiss();
    world.pointer.press();
    world.scheduler.advance(tick);
    world.drags.begin(true);
    world.scheduler.advance(tick);
    EXPECT_TRUE(world.controller.isOpen()) << "a file drag always opens";
}

TEST(NotchController, doesNotOpenForAButtonThatWasPressedElsewhere) {
    for (const auto& [press, opens] : {std::pair(QPointF(300, 400), false), // A window.
                                       {QPointF(600, 5), false},            // Beside the handle.
                                       {QPointF(710, 3), true}}) {          // The handle.
        SCOPED_TRACE(press.x());
        PanelWorld world;
        world.pointer.moveTo(press);
        world.pointer.press();
        world.moveTo(720, 5);
        EXPECT_EQ(world.controller.isOpen(), opens);
        world.scheduler.advance(Seconds(1));
        world.pointer.release();
        world.scheduler.advance(Seconds(1));
        EXPECT_EQ(world.controller.isOpen(), opens) << "a window was put there";
        world.moveTo(720, 300);
        world.moveTo(720, 5);
        EXPECT_TRUE(world.controller.isOpen());
    }
}

TEST(NotchController, aDragThatIsNoticedLateOpens) {
    PanelWorld world;
    world.moveTo(300, 400);
    world.pointer.press();
    world.moveTo(720, 5);
    ASSERT_FALSE(world.controller.isOpen());
    world.drags.begin(false);
    world.scheduler.advance(tick);
    EXPECT_TRUE(world.controller.isOpen());
}

TEST(NotchController, theWindowsOwnHoverIsUsedIfThePointerPositionIsUnknown) {
    PanelWorld world;
    world.pointer.location = std::nullopt;
    world.scheduler.advance(Seconds(1));
    ASSERT_FALSE(world.controller.isOpen());
    world.window.setUnderPointer(true);
    world.scheduler.advance(tick);
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_EQ(world.window.screen, u"one"_s) << "the main screen";
    world.window.setUnderPointer(false);
    world.scheduler.advance(Seconds(0.3));
    EXPECT_TRUE(world.controller.isOpen());
    world.scheduler.advance(Seconds(0.1));
    EXPECT_FALSE(world.controller.isOpen()) << "nothing else would ever close it";
}

TEST(NotchController, openedByRequestItWaitsForAPointerWhosePlaceIsUnknown) {
    PanelWorld world;
    world.pointer.location = std::nullopt;
    world.controller.toggle();
    world.scheduler.advance(Seconds(60));
    EXPECT_TRUE(world.controller.isOpen()) << "nobody has hovered over it yet";
    world.window.setUnderPointer(true);
    world.scheduler.advance(tick);
    world.controller.setDraggingOut(true);
    world.window.setUnderPointer(false);
    world.scheduler.advance(Seconds(60));
    EXPECT_TRUE(world.controller.isOpen()) << "files are being dragged out of it";
    world.controller.setDraggingOut(false);
    world.scheduler.advance(Seconds(0.5));
    EXPECT_FALSE(world.controller.isOpen());
}

TEST(NotchController, showsABarWhileATimerRunsOrRemindersAreShown) {
    PanelWorld world;
    world.store.startTimer(u"Deep work"_s, 25);
    EXPECT_TRUE(world.controller.showsBar());
    EXPECT_EQ(world.window.size, QSizeF(520, 28)) << "as high as the bar of the screen";
    world.store.setReminders({u"Call"_s});
    world.store.setReminderOpen(true);
    world.store.stopTimer();
    EXPECT_EQ(world.window.size, QSizeF(520, 28));
    world.settings.onLayoutChange = [&] {
        world.controller.positionCollapsed();
    };
    world.settings.macType.set(u"notch"_s);
    EXPECT_EQ(world.window.size, QSizeF(640, 28));
    EXPECT_EQ(world.controller.notch(), 200);
    world.moveTo(410, 20);
    EXPECT_TRUE(world.controller.isOpen()) << "anywhere on the bar opens";
    world.store.setReminderOpen(false);
    EXPECT_EQ(world.window.size, QSizeF(927, 560)) << "an open panel waits until it closes";
    world.controller.collapse();
    EXPECT_EQ(world.window.size, QSizeF(200, 12));
}

TEST(NotchController, isAsHighAsTheShelfNeedsItKeepingItsTopEdge) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.store.addToShelf({world.drags.file});
    EXPECT_EQ(world.controller.frame(), QRectF(256.5, 0, 927, 700));
    world.store.removeFromShelf(world.drags.file);
    EXPECT_EQ(world.controller.frame(), QRectF(256.5, 0, 927, 560));
    world.controller.collapse();
    world.store.addToShelf({world.drags.file});
    EXPECT_EQ(world.window.size, QSizeF(200, 12));
}

TEST(NotchController, anEnteringDragShowsTheShelfWithNothingSelected) {
    PanelWorld world;
    const QUrl parked(u"file:///parked"_s);
    world.store.addToShelf({parked});
    world.beginDrag(true);
    const int before = world.store.shelfRequestTick();
    world.controller.onDragEnter();
    EXPECT_TRUE(world.controller.isOpen());
    EXPECT_EQ(world.store.shelfRequestTick(), before + 1);
    EXPECT_EQ(world.store.shelf().selected, QSet<QUrl>());
    world.controller.onDragEnter();
    EXPECT_EQ(world.store.shelfRequestTick(), before + 1) << "counted for the collapsed panel only";

    world.controller.onDrop();
    EXPECT_EQ(world.store.shelf().stacks, (QList<QList<QUrl>>{{parked}, {world.drags.file}}));
    EXPECT_EQ(world.store.shelf().selectedFiles(), QList<QUrl>{world.drags.file});
}

TEST(NotchController, aDragOnTheHandleOpensOnceItIsKnownToCarryFiles) {
    PanelWorld world;
    const QUrl parked(u"file:///parked"_s);
    world.store.addToShelf({parked});
    const int before = world.store.shelfRequestTick();
    const auto untouched = [&] {
        return !world.controller.isOpen() && !world.controller.filesOver() &&
               world.store.shelfRequestTick() == before &&
               world.store.shelf().selected == QSet<QUrl>{parked};
    };
    world.beginDrag(std::nullopt);
    EXPECT_TRUE(world.controller.onDragEnter()) << "refused before it is known";
    EXPECT_TRUE(untouched());
    world.drags.answer(false);
    EXPECT_TRUE(untouched()) << "by a web link";
    EXPECT_FALSE(world.controller.mayCarryFiles());
    EXPECT_FALSE(world.controller.onDrop()) << "taken without files";
    EXPECT_FALSE(world.controller.onDragEnter());

    world.drags.begin(std::nullopt);
    ASSERT_TRUE(world.controller.onDragEnter());
    world.controller.onDragLeave();
    world.drags.answer(true);
    EXPECT_TRUE(untouched()) << "by a drag that has left";
    ASSERT_TRUE(world.controller.onDragEnter());
    EXPECT_TRUE(world.controller.isOpen() && world.controller.filesOver());
    world.controller.onDragLeave();
    EXPECT_FALSE(world.controller.filesOver());
}

TEST(NotchController, showsLateFilesUnlessTheUserHasClosedThePanel) {
    for (const bool closed : {false, true}) {
        SCOPED_TRACE(closed);
        PanelWorld world;
        world.beginDrag(std::nullopt);
        world.controller.onDragEnter();
        EXPECT_TRUE(world.controller.onDrop());
        if (closed) {
            world.controller.positionExpanded();
            world.controller.dismiss();
        }
        const int before = world.store.shelfRequestTick();
        world.drags.begin(false); // Another drag loses nothing of the first.
        world.drags.answer(true, {}, 1);
        EXPECT_EQ(world.store.shelf().files(), QList<QUrl>{world.drags.file});
        EXPECT_EQ(world.controller.isOpen(), !closed);
        EXPECT_EQ(world.store.shelfRequestTick(), before + (closed ? 0 : 1));
    }
}

TEST(NotchController, isHiddenWhileTheSessionIsLocked) {
    PanelWorld world;
    EXPECT_TRUE(world.window.shown);
    world.moveTo(720, 5);
    ASSERT_TRUE(world.controller.isOpen());
    world.lock.setLocked(true);
    EXPECT_FALSE(world.window.shown);
    EXPECT_FALSE(world.controller.isOpen());
    world.otherLock.setLocked(true);
    world.lock.setLocked(false);
    EXPECT_FALSE(world.window.shown) << "the other one is locked still";
    world.controller.toggle();
    world.beginDrag(true);
    world.moveTo(720, 5);
    EXPECT_FALSE(world.controller.isOpen());
    EXPECT_FALSE(world.barrier.held);
    EXPECT_FALSE(world.window.shown);
    world.pointer.release();
    world.otherLock.setLocked(false);
    EXPECT_TRUE(world.window.shown);
    world.scheduler.advance(tick);
    EXPECT_TRUE(world.controller.isOpen()) << "the pointer is in the hot zone";
}

TEST(NotchController, hasTheKeyboardOnlyForTyping) {
    PanelWorld world;
    world.moveTo(720, 5);
    EXPECT_FALSE(world.window.focused) << "opening takes no focus";
    world.controller.typeFocus();
    EXPECT_TRUE(world.window.focused);
    world.controller.collapse();
    EXPECT_FALSE(world.window.focused);
}

} // namespace
} // namespace ravelo
