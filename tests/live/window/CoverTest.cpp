#include "live/window/PanelFixture.h"
#include "platform/x11/pointer/X11InputGrab.h"

#include <array>

using namespace Qt::StringLiterals;

namespace ravelo::live {

namespace {

constexpr QRect mainMonitor(0, 0, 1920, 1080);

class CoverTest : public PanelFixture {
public:
    void SetUp() override { show(u"DUMMY0"_s, {400, 200}); }

    [[nodiscard]] bool becomes(bool locked) {
        return eventually([&] { return cover.isLocked() == locked; });
    }

    void restack(xcb_window_t other, xcb_stack_mode_t mode) {
        const uint32_t value = mode;
        xcb_configure_window(server.get(), other, XCB_CONFIG_WINDOW_STACK_MODE, &value);
        static_cast<void>(server.focus()); // At the answer it is done.
    }

    int changes = 0;
    Handle subscription = cover.onChange([this] { ++changes; });
};

TEST_F(CoverTest, IsAnUnmanagedWindowOverTheWholeMonitor) {
    {
        const OtherWindow game(OtherWindow::Kind::fullScreen, mainMonitor);
        const OtherWindow menu(OtherWindow::Kind::popup, {0, 0, 1920, 900});
        const OtherWindow elsewhere(OtherWindow::Kind::popup, {1920, 0, 1280, 1024});
    }
    EXPECT_EQ(changes, 0);
    {
        const OtherWindow locker(OtherWindow::Kind::popup, mainMonitor.adjusted(1, 1, -1, -1));
        ASSERT_TRUE(becomes(true)) << "the locker is not seen";
    }
    ASSERT_TRUE(becomes(false)) << "the locker's end is not seen";
    EXPECT_EQ(changes, 2) << "something else counted too";
}

TEST_F(CoverTest, EndsOnceItIsBelow) {
    const OtherWindow wallpaper(OtherWindow::Kind::popup, mainMonitor);
    ASSERT_TRUE(becomes(true));
    restack(wallpaper.id(), XCB_STACK_MODE_BELOW);
    ASSERT_TRUE(becomes(false)) << "it lies below all others";
    restack(wallpaper.id(), XCB_STACK_MODE_ABOVE);
    ASSERT_TRUE(becomes(true));
}

TEST_F(CoverTest, StaysAboveAPanelThatIsRaisedByMistake) {
    const OtherWindow locker(OtherWindow::Kind::popup, mainMonitor);
    panel.orderFront(); // Whether or not the locker is known yet.
    ASSERT_TRUE(becomes(true));
    EXPECT_TRUE(eventually([&] { return server.isAbove(locker.id(), id()); }));
    panel.orderFront();
    EXPECT_TRUE(eventually([&] { return server.isAbove(locker.id(), id()); }));
    EXPECT_TRUE(cover.isLocked());
}

struct FrameCase {
    const char* name;
    bool ofWindowManager;
    bool holdsOther;
    bool counts;
};

class FrameTest : public CoverTest, public testing::WithParamInterface<FrameCase> {
public:
    void setWindowManager(const std::vector<uint32_t>& check) {
        server.setCardinals(server.root(), check_, check, XCB_ATOM_WINDOW);
    }

    void TearDown() override { setWindowManager(real_); }

private:
    const QByteArray check_ = "_NET_SUPPORTING_WM_CHECK";
    const std::vector<uint32_t> real_ = server.cardinals(server.root(), check_);
};

TEST_P(FrameTest, IsNoneIfItHoldsAWindowForTheWindowManager) {
    const auto& row = GetParam();
    const OtherWindow frame(OtherWindow::Kind::popup, {0, 0, 300, 300});
    const OtherWindow program(OtherWindow::Kind::popup, {0, 0, 200, 200});
    if (row.ofWindowManager) {
        setWindowManager({frame.id()});
    }
    if (row.holdsOther) {
        xcb_reparent_window(server.get(), program.id(), frame.id(), 0, 0);
    }
    const std::array<uint32_t, 2> size = {1920, 1080};
    xcb_configure_window(server.get(), frame.id(),
                         XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
    xcb_flush(server.get());
    if (row.counts) {
        EXPECT_TRUE(becomes(true)) << "a locker is not seen";
    } else {
        const OtherWindow locker(OtherWindow::Kind::popup, mainMonitor);
        ASSERT_TRUE(becomes(true));
    }
    EXPECT_TRUE(becomes(row.counts)) << "the frame still counts when the locker is gone";
}

INSTANTIATE_TEST_SUITE_P(
    All, FrameTest,
    testing::Values(FrameCase{"frame", true, true, false},
                    FrameCase{"locker_of_the_window_manager", true, false, true},
                    FrameCase{"locker_with_a_screen_saver", false, true, true}),
    [](const auto& row) { return row.param.name; });

TEST_F(CoverTest, ReportsUnmanagedWindowsExceptThePanel) {
    int newcomers = 0;
    const Handle appearance = cover.onNewcomer([&] { ++newcomers; });
    panel.orderOut();
    panel.orderFront();
    const OtherWindow game(OtherWindow::Kind::fullScreen, mainMonitor);
    const OtherWindow grabber(OtherWindow::Kind::popup, {0, 0, 1, 1});
    EXPECT_TRUE(eventually([&] { return newcomers > 0; }));
    EXPECT_EQ(newcomers, 1) << "only the grabber's window is not managed";
}

TEST_F(PanelFixture, InputIsHeldByAnotherIfPointerAndKeyboardAre) {
    using x11::Owned;
    x11::X11InputGrab grab(*connection, cover);
    xcb_connection_t* other = server.get();
    const uint8_t async = XCB_GRAB_MODE_ASYNC;
    for (const auto& [pointer, keyboard] :
         {std::pair(false, false), {true, false}, {false, true}, {true, true}}) {
        SCOPED_TRACE(testing::Message() << "pointer " << pointer << ", keyboard " << keyboard);
        EXPECT_FALSE(grab.isHeldByAnother());
        if (pointer) {
            const Owned<xcb_grab_pointer_reply_t> reply(
                xcb_grab_pointer_reply(other,
                                       xcb_grab_pointer(other, 0, server.root(), 0, async, async,
                                                        XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
                                       nullptr));
            ASSERT_EQ(reply->status, XCB_GRAB_STATUS_SUCCESS) << "the question left a grab behind";
        }
        if (keyboard) {
            const Owned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
                other, xcb_grab_keyboard(other, 0, server.root(), XCB_CURRENT_TIME, async, async),
                nullptr));
            ASSERT_EQ(reply->status, XCB_GRAB_STATUS_SUCCESS) << "the question left a grab behind";
        }
        EXPECT_EQ(grab.isHeldByAnother(), pointer && keyboard);
        xcb_ungrab_pointer(other, XCB_CURRENT_TIME);
        xcb_ungrab_keyboard(other, XCB_CURRENT_TIME);
        static_cast<void>(server.focus()); // At the answer it is done.
    }
}

} // namespace

} // namespace ravelo::live
