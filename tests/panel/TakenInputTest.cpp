#include "fakes/PanelWorld.h"

#include <gtest/gtest.h>

namespace ravelo {
namespace {

void hover(PanelWorld& world) {
    world.moveTo(720, 5);
}

void toggle(PanelWorld& world) {
    world.controller.toggle();
}

void open(PanelWorld& world) {
    world.controller.open();
}

void park(PanelWorld& world) {
    world.controller.onFiles({world.drags.file});
}

void dragFiles(PanelWorld& world) {
    world.beginDrag(true);
    world.moveTo(720, 100);
}

void dragText(PanelWorld& world) {
    world.beginDrag(false);
    world.moveTo(720, 5);
}

void dragFilesOntoTheHandle(PanelWorld& world) {
    world.drags.begin(true);
    world.controller.onDragEnter();
}

TEST(TakenInput, opensOnlyForFilesUnlessItIsReleasedSoon) {
    struct Case {
        const char* name;
        void (*ask)(PanelWorld&);
        double held; ///< Seconds for which another program holds pointer and keyboard.
        bool opens;
    };

    const Case cases[] = {{"pointer", hover, 3, false},
                          {"toggle under a locker", toggle, 0.5, false},
                          {"toggle by a key", toggle, 0.3, true},
                          {"open under a locker", open, 0.5, false},
                          {"open by a menu", open, 0.3, true},
                          {"files under a locker", park, 0.5, false},
                          {"dragged files", dragFiles, 0, true},
                          {"dragged text", dragText, 3, false},
                          {"dragged onto the handle", dragFilesOntoTheHandle, 0, true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        PanelWorld world;
        world.grab.held = true;
        c.ask(world);
        const bool atOnce = world.controller.isOpen();
        world.scheduler.advance(Seconds(c.held));
        world.grab.held = false;
        world.scheduler.advance(Seconds(5));
        EXPECT_EQ(world.controller.isOpen(), c.opens);
        EXPECT_EQ(atOnce, c.opens && c.held == 0) << "opened while it was held";
        EXPECT_TRUE(world.window.shown) << "the handle stays";
    }
}

TEST(TakenInput, aRequestDuringALockIsDropped) {
    PanelWorld world;
    world.grab.held = true;
    world.controller.toggle();
    world.lock.setLocked(true);
    world.grab.held = false;
    world.lock.setLocked(false);
    world.scheduler.advance(Seconds(5));
    EXPECT_FALSE(world.controller.isOpen());
}

TEST(TakenInput, aToggleByKeyGetsTheKeyboardOnceOpen) {
    PanelWorld world;
    world.grab.held = true;
    world.controller.toggle();
    world.scheduler.advance(Seconds(0.2));
    world.grab.held = false;
    world.scheduler.advance(Seconds(0.1));
    EXPECT_TRUE(world.window.focused);
}

TEST(TakenInput, hidesTheOpenPanelSoonAfterTheLockersWindow) {
    struct Case {
        const char* name;
        double takenAfter; ///< Seconds.
        bool ofFiles;      ///< A drag of files is on, whose source may hold the input too.
    };

    for (const Case& c : {Case{"at once", 0, false}, {"soon", 0.015, false}, {"files", 0, true}}) {
        SCOPED_TRACE(c.name);
        PanelWorld world;
        if (c.ofFiles) {
            world.beginDrag(true);
        }
        world.moveTo(720, 5);
        ASSERT_TRUE(world.controller.isOpen());
        world.grab.likelyTaken.notify();
        world.scheduler.advance(Seconds(c.takenAfter));
        world.grab.held = true;
        world.scheduler.advance(Seconds(0.045 - c.takenAfter));
        EXPECT_EQ(world.controller.isOpen(), c.ofFiles);
        EXPECT_EQ(world.window.shown, c.ofFiles) << "the window must go, not only close";
        world.grab.held = false;
        world.scheduler.advance(Seconds(2));
        EXPECT_TRUE(world.window.shown) << "the handle comes back";
    }
}

TEST(TakenInput, theHandleComesBackAlthoughMoreWindowsAppear) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.grab.held = true;
    world.grab.likelyTaken.notify();
    ASSERT_FALSE(world.window.shown);
    world.scheduler.advance(Seconds(0.5));
    world.grab.likelyTaken.notify();
    world.scheduler.advance(Seconds(2));
    EXPECT_TRUE(world.window.shown);
}

} // namespace
} // namespace ravelo
