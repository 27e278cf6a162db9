#include "live/window/PanelFixture.h"

#include <ostream>

using namespace Qt::StringLiterals;

namespace ravelo::live {

namespace {

class ScreensTest : public testing::Test {
public:
    /// What bars reserve on a monitor, in its native pixels from the left, top, right and bottom.
    QMargins reserved(const QString& id) {
        const x11::Monitor* monitor = screens.monitor(id);
        if (monitor == nullptr) {
            return {-1, -1, -1, -1};
        }
        const QRectF frame = monitor->screen.frame;
        const QRectF free = monitor->screen.visibleFrame;
        return (QMarginsF(free.left() - frame.left(), free.top() - frame.top(),
                          frame.right() - free.right(), frame.bottom() - free.bottom()) *
                monitor->scale)
            .toMargins();
    }

    std::unique_ptr<x11::Connection> connection = std::move(x11::Connection::create().value());
    x11::Events events{*connection};
    x11::X11Screens screens{*connection, events};
};

TEST_F(ScreensTest, AreTheMonitorsOfTheServer) {
    const auto all = screens.all();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].id, u"DUMMY0"_s);
    EXPECT_EQ(all[1].id, u"DUMMY1"_s);
    EXPECT_EQ(screens.main(), all[0]);
    for (const Screen& screen : all) {
        EXPECT_EQ(screen.visibleFrame, screen.frame) << qPrintable(screen.id);
        EXPECT_FALSE(screen.leftOfNotch || screen.rightOfNotch) << qPrintable(screen.id);
    }
    // A fractional scale may cost a pixel.
    const QRect right = screens.monitor(u"DUMMY1"_s)->native;
    EXPECT_EQ(screens.monitor(u"DUMMY0"_s)->native, QRect(0, 0, 1920, 1080));
    EXPECT_EQ(right.topLeft(), QPoint(1920, 0));
    EXPECT_NEAR(right.width(), 1280, 1);
    EXPECT_NEAR(right.height(), 1024, 1);
}

TEST_F(ScreensTest, FollowTheMonitors) {
    int changes = 0;
    const Handle subscription = screens.onChange([&] { ++changes; });
    const auto switchRight = [](const QString& arguments) {
        return run(u"xrandr"_s, QStringList{u"--output"_s, u"DUMMY1"_s} + arguments.split(u' '));
    };
    ASSERT_TRUE(switchRight(u"--off"_s));
    EXPECT_TRUE(eventually([&] { return screens.all().size() == 1; })) << "it is not seen to go";
    EXPECT_GT(changes, 0);
    changes = 0;
    ASSERT_TRUE(switchRight(u"--mode 1280x1024 --right-of DUMMY0"_s));
    EXPECT_TRUE(eventually([&] { return screens.all().size() == 2; })) << "it is not seen to come";
    EXPECT_GT(changes, 0);
}

TEST_F(ScreensTest, FollowABar) {
    int changes = 0;
    const Handle subscription = screens.onChange([&] { ++changes; });
    const auto settles = [&](QMargins left, QMargins right) {
        return eventually(
            [&] { return reserved(u"DUMMY0"_s) == left && reserved(u"DUMMY1"_s) == right; });
    };
    {
        OtherWindow bar(OtherWindow::Kind::dock, {1920, 0, 1280, 30},
                        {0, 0, 30, 0, 0, 0, 0, 0, 1920, 3199, 0, 0});
        EXPECT_TRUE(settles({}, {0, 30, 0, 0})) << "a bar at the top of the right monitor";
        EXPECT_EQ(changes, 1);
        bar.reserve({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
        EXPECT_TRUE(settles({}, {})) << "the bar hides";
        bar.reserve({0, 0, 0, 60, 0, 0, 0, 0, 0, 0, 0, 1919});
        EXPECT_TRUE(settles({0, 0, 0, 60}, {})) << "the bar moves to the bottom of the left";
    }
    EXPECT_TRUE(settles({}, {})) << "the bar is closed";
    EXPECT_EQ(changes, 4);
    OtherWindow window(OtherWindow::Kind::normal, {100, 100, 300, 200});
    const auto isWatched = [&] {
        const x11::Owned<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
            connection->get(), xcb_get_window_attributes(connection->get(), window.id()), nullptr));
        return reply && reply->your_event_mask != 0;
    };
    window.reserve({0, 0, 30, 0, 0, 0, 0, 0, 0, 1919, 0, 0});
    const OtherWindow next(OtherWindow::Kind::normal, {100, 100, 300, 200}); // Triggers a new look.
    EXPECT_TRUE(eventually(isWatched)) << "a window that reserves something";
    window.reserve({});
    EXPECT_TRUE(eventually([&] { return !isWatched(); })) << "it is an ordinary one again";
}

TEST_F(ScreensTest, DoNotNotifyWithoutAChange) {
    int changes = 0;
    const Handle subscription = screens.onChange([&] { ++changes; });
    { const OtherWindow ordinary(OtherWindow::Kind::normal, {100, 100, 300, 200}); }
    // The bar is reported after the window.
    const OtherWindow bar(OtherWindow::Kind::dock, {0, 0, 1920, 20},
                          {0, 0, 20, 0, 0, 0, 0, 0, 0, 1919, 0, 0});
    EXPECT_TRUE(eventually([&] { return changes > 0; })) << "the bar is not seen";
    EXPECT_EQ(changes, 1);
}

} // namespace

} // namespace ravelo::live
