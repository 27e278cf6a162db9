#include "platform/x11/ScreenSaverStatus.h"
#include "live/support/Clients.h"
#include "platform/x11/X11Screens.h"

#include <gtest/gtest.h>

namespace ravelo::x11 {
namespace {

using live::eventually;
using namespace Qt::StringLiterals;

void setStatus(const QString& first) {
    live::Client xprop(u"xprop"_s,
                       {u"-root"_s, u"-f"_s, u"_SCREENSAVER_STATUS"_s, u"32c"_s, u"-set"_s,
                        u"_SCREENSAVER_STATUS"_s, first + u",1764000000,0"_s});
    static_cast<void>(xprop.finish());
}

TEST(ScreenSaverStatus, followsTheRootWindowsProperty) {
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
    EXPECT_EQ(calls, 2) << "told where nothing changed";
}

} // namespace
} // namespace ravelo::x11
