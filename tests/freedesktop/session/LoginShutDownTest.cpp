#include "platform/freedesktop/session/LoginShutDown.h"

#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(LoginShutDown, asksTheLoginServiceInteractively) {
    PrivateBus bus;
    LoginShutDown shutDown(bus.connect(u"ours"_s));
    shutDown.request(); // Nobody is there; the next one finds the service.
    QList<QDBusMessage> calls;
    StandIn login([&](const QDBusMessage& call) {
        calls.append(call);
        return true;
    });
    QDBusConnection service = bus.connect(u"service"_s);
    login.serve(service, u"org.freedesktop.login1"_s);
    shutDown.request();
    ASSERT_TRUE(eventually([&] { return !calls.isEmpty(); }));
    EXPECT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0].path(), u"/org/freedesktop/login1"_s);
    EXPECT_EQ(calls[0].interface(), u"org.freedesktop.login1.Manager"_s);
    EXPECT_EQ(calls[0].member(), u"PowerOff"_s);
    EXPECT_EQ(calls[0].arguments(), QVariantList{true});
    EXPECT_TRUE(calls[0].isInteractiveAuthorizationAllowed());
}

} // namespace
} // namespace ravelo
