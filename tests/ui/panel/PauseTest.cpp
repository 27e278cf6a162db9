#include "panel_fixture/PanelFixture.h"

namespace ravelo {

namespace {

class PauseButton : public Panel {
protected:
    QString label() { return property(u"pause"_s, u"label"_s, "text").toString(); }
};

TEST_F(PauseButton, PausesByItsMenuAndResumesByAClick) {
    open();
    clickOn(u"pause"_s);
    clickIn(u"pauseMenu"_s, u"item0"_s);
    EXPECT_EQ(world.pause.remaining(), Seconds(15 * 60));
    EXPECT_EQ(label(), u"15 min"_s);
    world.scheduler.advance(Seconds(60.5));
    EXPECT_EQ(label(), u"14 min"_s);
    world.scheduler.advance(Seconds(13 * 60 + 10.5));
    EXPECT_EQ(label(), u"50 sec"_s);
    EXPECT_TRUE(eventually([this] { return shown(u"pauseMenu"_s) == nullptr; }));

    item(u"pause"_s)->forceActiveFocus();
    pressKeys(u"Down Down Down Down Return"_s);
    EXPECT_EQ(world.pause.length(), Seconds(60 * 60)) << "after Resume and 15 minutes";
    pressKeys(u"Return"_s);
    EXPECT_FALSE(world.pause.isPaused());
    EXPECT_EQ(toast(), u"Capture resumed"_s);
    clickOn(u"pause"_s);
    clickIn(u"pauseMenu"_s, u"item4"_s);
    EXPECT_EQ(toast(), u"Next copy will be ignored"_s);
    EXPECT_TRUE(world.pause.ignoresCopy());
}

TEST_F(PauseButton, AnotherClickClosesItsMenu) {
    open();
    clickOn(u"pause"_s);
    item(u"pauseMenu"_s);
    clickOn(u"pause"_s);
    EXPECT_TRUE(eventually([this] { return shown(u"pauseMenu"_s) == nullptr; }));
}

TEST_F(PauseButton, IsSeenWhileClosed) {
    EXPECT_NE(shown(u"grip"_s), nullptr);
    world.pause.pause({});
    EXPECT_EQ(shown(u"grip"_s), nullptr);
    item(u"pausedGrip"_s);
    world.store.startTimer(u"work"_s, 5);
    EXPECT_NE(shown(u"pauseSign"_s), nullptr);
    const int atRest = world.scheduler.pending();
    world.pause.pause(Seconds(600));
    EXPECT_EQ(world.scheduler.pending(), atRest + 1) << "only its end: nothing counts unseen";
}

TEST_F(PauseButton, LeavesRoomInANarrowPanel) {
    world.settings.panelWidth.set(600);
    rebuild();
    open();
    EXPECT_NE(shown(u"pause"_s), nullptr);
    world.store.addToShelf({QUrl(u"file:///a"_s)});
    EXPECT_EQ(shown(u"pause"_s), nullptr) << "the shelf's button has its place";
    world.pause.pause({});
    EXPECT_EQ(item(u"pause"_s)->width(), 32);
}

} // namespace

} // namespace ravelo
