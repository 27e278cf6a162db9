#include "platform/freedesktop/portals/PortalBus.h"

#include <QDBusMessage>
#include <QUrl>
#include <QVariantMap>

namespace ravelo {

using namespace Qt::StringLiterals;

QDBusConnection portalBus(const QString& program) {
    const auto name = u"ravelo-portals"_s;
    if (const QDBusConnection present(name); present.isConnected()) {
        return present;
    }
    const QByteArray path = QUrl::toPercentEncoding(program, "/");
    auto bus = QDBusConnection::connectToBus(u"unixexec:path="_s + QString::fromLatin1(path), name);
    introduceToPortals(bus);
    return bus;
}

void introduceToPortals(const QDBusConnection& bus) {
    auto call = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.host.portal.Registry"_s, u"Register"_s);
    call << u"org.ravelo.Ravelo"_s << QVariantMap();
    bus.send(call);
}

} // namespace ravelo
