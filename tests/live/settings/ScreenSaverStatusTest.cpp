#include "platform/x11/settings/ScreenSaverStatus.h"
#include "live/support/Clients.h"
#include "platform/x11/connection/Properties.h"
#include "platform/x11/screens/X11Screens.h"

#include <gtest/gtest.h>

namespace ravelo::x11 {
namespace {

using namespace Qt::StringLiterals;

void setStatus(const QString& first) {
    live::Client xprop(u"xprop"_s,
                       {u"-root"_s, u"-f"_s, u"_SCREENSAVER_STATUS"_s, u"32c"_s, u"-set"_s,
                        u"_SCREENSAVER_STATUS"_s, first + u",1764000000,0"_s});
    static_cast<void>(xprop.finish());
}

/// The window by which a saver is known, on a connection of its own that ends with it.
class Saver {
public:
    Saver() {
        const xcb_window_t window = xcb_generate_id(connection_->get());
        xcb_create_window(connection_->get(), 0, window, connection_->root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_change_property(connection_->get(), XCB_PROP_MODE_REPLACE, window,
                            connection_->atom("_SCREENSAVER_VERSION"), XCB_ATOM_STRING, 8, 4,
                            "6.06");
        static_cast<void>(windowSize(*connection_, window));
    }

private:
    std::unique_ptr<Connection> connection_ = std::move(Connection::create().value());
};

TEST(ScreenSaverStatus, followsTheRootWindowsPropertyAndTheSaversLife) {
    auto saver = std::make_unique<Saver>();
    const auto connection = std::move(Connection::create().value());
    Events events(*connection);
    const X11Screens screens(*connection, events);
    setStatus(u"307"_s);
    ScreenSaverStatus status(*connection, events);
    EXPECT_TRUE(status.isLocked()) << "locked before the start";
    int calls = 0;
    const Handle listening = status.onChange([&] { ++calls; });
    setStatus(u"306"_s);
    setStatus(u"0"_s);
    EXPECT_TRUE(eventually([&] { return !status.isLocked(); }));
    setStatus(u"307"_s);
    EXPECT_TRUE(eventually([&] { return status.isLocked(); }));
    EXPECT_EQ(calls, 2) << "notified without a change";
    saver.reset();
    EXPECT_TRUE(eventually([&] { return !status.isLocked(); })) << "the saver was killed";
}

} // namespace
} // namespace ravelo::x11
