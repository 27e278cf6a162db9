#include "fakes/PanelWorld.h"

#include <gtest/gtest.h>

namespace ravelo {

namespace {

// The middle of the main screen is at x 720.
TEST(EdgeGuard, holdsFileDragsAroundTheMiddleOnly) {
    struct Case {
        const char* name;
        QPointF pointer;
        std::optional<bool> files;
        bool holds;
    };

    const Case cases[] = {{"middle", {720, 300}, true, true},
                          {"leftmost", {270, 300}, true, true},
                          {"left of it", {269, 300}, true, false},
                          {"rightmost", {1170, 300}, true, true},
                          {"right of it", {1171, 300}, true, false},
                          {"text", {720, 300}, false, false},
                          {"a silent source", {720, 300}, std::nullopt, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        PanelWorld world;
        world.beginDrag(std::nullopt);
        world.moveTo(10, 500);
        EXPECT_EQ(world.drags.questions(), 0) << "the source was asked though nothing is near";
        world.moveTo(c.pointer.x(), c.pointer.y());
        if (c.files) {
            world.drags.answer(*c.files);
        }
        world.scheduler.advance(tick);
        EXPECT_EQ(world.barrier.held,
                  c.holds ? std::optional(QRectF(270, 0, 900, 10)) : std::nullopt);
        world.moveTo(10, 500);
        EXPECT_EQ(world.barrier.held.has_value(), c.holds) << "released while the drag is on";
        world.pointer.release();
        world.scheduler.advance(tick);
        EXPECT_FALSE(world.barrier.held) << "held on after the drag";
    }
}

TEST(EdgeGuard, holdsNoDragOfAnotherButton) {
    PanelWorld world;
    world.beginDrag(true, Qt::RightButton);
    world.moveTo(720, 300);
    EXPECT_FALSE(world.barrier.held);
}

TEST(EdgeGuard, holdsDragsOutOfThePanelToo) {
    PanelWorld world;
    world.moveTo(720, 5);
    world.moveTo(720, 300);
    world.pointer.press();
    world.scheduler.advance(tick);
    world.controller.setDraggingOut(true);
    world.scheduler.advance(tick);
    EXPECT_EQ(world.barrier.held, QRectF(270, 0, 900, 10));
    EXPECT_EQ(world.drags.questions(), 0) << "its files are known";
    world.controller.setDraggingOut(false);
    world.scheduler.advance(tick);
    EXPECT_FALSE(world.barrier.held) << "held on after the drag";
}

TEST(EdgeGuard, waitsForTrustAndStartsWithin3Seconds) {
    PanelWorld world;
    EdgeGuard guard(world.scheduler, world.screens, world.barrier, [] { return true; });
    world.barrier.trusted = false;
    guard.start();
    world.scheduler.advance(Seconds(60));
    guard.follow(QPointF(720, 300));
    EXPECT_EQ(guard.state(), EdgeGuard::State::waitingForTrust);
    EXPECT_EQ(world.barrier.attempts, 0);

    world.barrier.trusted = true;
    world.scheduler.advance(Seconds(2.9));
    EXPECT_EQ(guard.state(), EdgeGuard::State::waitingForTrust);
    world.scheduler.advance(Seconds(0.2));
    EXPECT_EQ(guard.state(), EdgeGuard::State::guarding);
    guard.follow(QPointF(720, 300));
    EXPECT_TRUE(world.barrier.held);
    guard.start();
    EXPECT_TRUE(world.barrier.held) << "starting again is no change";
}

TEST(EdgeGuard, doesNotRetryAFailure) {
    PanelWorld world;
    world.barrier.broken = true;
    EdgeGuard guard(world.scheduler, world.screens, world.barrier, [] { return true; });
    guard.start();
    guard.follow(QPointF(720, 300));
    guard.start();
    guard.follow(QPointF(720, 300));
    EXPECT_EQ(guard.state(), EdgeGuard::State::failed);
    EXPECT_EQ(world.barrier.attempts, 1);
}

} // namespace
} // namespace ravelo
