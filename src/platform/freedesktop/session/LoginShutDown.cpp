#include "platform/freedesktop/session/LoginShutDown.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

LoginShutDown::LoginShutDown(QDBusConnection bus) : bus_(std::move(bus)) {}

void LoginShutDown::request() {
    auto call =
        QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                       u"org.freedesktop.login1.Manager"_s, u"PowerOff"_s);
    constexpr bool interactive = true;
    call << interactive;
    call.setInteractiveAuthorizationAllowed(true);
    bus_.asyncCall(call); // The answer does not matter.
}

} // namespace ravelo
