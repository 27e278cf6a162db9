#include "fakes/PanelWorld.h"

#include <gtest/gtest.h>

namespace ravelo {
namespace {

struct HeldCase {
    const char* name;
    void (*ask)(PanelWorld&);
    Seconds held; ///< How long another program holds pointer and keyboard.
    bool opens;
};

class HeldInput : public testing::TestWithParam<HeldCase> {};

TEST_P(HeldInput, opensNothingButForFilesUnlessItIsReleasedSoon) {
    PanelWorld world;
    const auto [name, ask, held, opens] = GetParam();
    world.grab.held = true;
    ask(world);
    const bool atOnce = world.controller.isOpen();
    world.scheduler.advance(held);
    world.grab.held = false;
    world.scheduler.advance(Seconds(5));
    EXPECT_EQ(world.controller.isOpen(), opens);
    EXPECT_EQ(atOnce, opens && held == Seconds(0)) << "opened while it was held";
    EXPECT_TRUE(world.window.shown) << "the handle stays";
}

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

INSTANTIATE_TEST_SUITE_P(
    All, HeldInput,
    testing::Values(HeldCase{"pointer", hover, Seconds(3), false},
                    HeldCase{"toggleUnderALocker", toggle, Seconds(0.5), false},
                    HeldCase{"toggleByAKey", toggle, Seconds(0.3), true},
                    HeldCase{"openUnderALocker", open, Seconds(0.5), false},
                    HeldCase{"openByAMenu", open, Seconds(0.3), true},
                    HeldCase{"filesUnderALocker", park, Seconds(0.5), false},
                    HeldCase{"draggedFiles", dragFiles, Seconds(0), true},
                    HeldCase{"draggedText", dragText, Seconds(3), false},
                    HeldCase{"draggedOntoTheHandle", dragFilesOntoTheHandle, Seconds(0), true}),
    [](const auto& row) { return row.param.name; });

TEST(HeldInputRequest, aRequestUnderALockIsNotKeptForLater) {
    PanelWorld world;
    world.grab.held = true;
    world.controller.toggle();
    world.lock.setLocked(true);
    world.grab.held = false;
    world.lock.setLocked(false);
    world.scheduler.advance(Seconds(5));
    EXPECT_FALSE(world.controller.isOpen());
}

TEST(HeldInputRequest, aToggleByAKeyTakesTheKeyboardOnceItOpens) {
    PanelWorld world;
    world.grab.held = true;
    world.controller.toggle();
    world.scheduler.advance(Seconds(0.2));
    world.grab.held = false;
    world.scheduler.advance(Seconds(0.1));
    EXPECT_TRUE(world.window.focused);
}

struct TakenCase {
    const char* name;
    bool ofFiles; ///< A drag of files is on, whose source may hold the input too.
    Seconds takenAfter;
    bool staysOpen;
};

class TakenInput : public testing::TestWithParam<TakenCase> {};

TEST_P(TakenInput, hidesTheOpenPanelSoonAfterTheLockersWindow) {
    PanelWorld world;
    const auto [name, ofFiles, takenAfter, staysOpen] = GetParam();
    if (ofFiles) {
        world.beginDrag(true);
    }
    world.moveTo(720, 5);
    ASSERT_TRUE(world.controller.isOpen());
    world.grab.likelyTaken.notify();
    world.scheduler.advance(takenAfter);
    world.grab.held = true;
    world.scheduler.advance(Seconds(0.045) - takenAfter);
    EXPECT_EQ(world.controller.isOpen(), staysOpen);
    EXPECT_EQ(world.window.shown, staysOpen) << "the window must go, not only close";
    world.grab.held = false;
    world.scheduler.advance(Seconds(2));
    EXPECT_TRUE(world.window.shown) << "the handle comes back";
}

INSTANTIATE_TEST_SUITE_P(All, TakenInput,
                         testing::Values(TakenCase{"atOnce", false, Seconds(0), false},
                                         TakenCase{"soon", false, Seconds(0.015), false},
                                         TakenCase{"byASourceOfFiles", true, Seconds(0), true}),
                         [](const auto& row) { return row.param.name; });

TEST(TakenInputEnd, theHandleComesBackThoughMoreWindowsCome) {
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
