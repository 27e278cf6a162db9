#include "platform/freedesktop/portals/PortalBus.h"
#include "base/Files.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

/// Whatever it is sent comes back.
class Echo : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.ravelo.Echo")

public Q_SLOTS:

    QByteArray echo(const QByteArray& bytes) { return bytes; }
};

TEST(PortalBus, isConnectedByAChildThatAnybodyMayLookAt) {
    PrivateBus bus;
    QStringList calls;
    StandIn portal([&](const QDBusMessage& call) {
        calls.append(call.member() + u' ' + call.arguments().value(0).toString());
        return std::optional(QVariant());
    });
    QDBusConnection portalSide = bus.connect(u"portal"_s);
    portal.serve(portalSide, u"org.freedesktop.portal.Desktop"_s);
    const QByteArray before = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    QDBusConnection portals = portalBus(RAVELO_BUS);
    qputenv("DBUS_SESSION_BUS_ADDRESS", before);
    ASSERT_TRUE(portals.isConnected()) << qPrintable(portals.lastError().message());

    const uint process = portals.interface()->servicePid(portals.baseService()).value();
    EXPECT_NE(process, QCoreApplication::applicationPid()) << "portals would look at us";
    EXPECT_TRUE(readFile(u"/proc/%1/cmdline"_s.arg(process))
                    .value_or(QByteArray())
                    .startsWith(RAVELO_BUS.toUtf8()));

    Echo echo;
    QDBusConnection service = bus.connect(u"service"_s);
    service.registerObject(u"/"_s, &echo, QDBusConnection::ExportAllSlots);
    auto call = QDBusMessage::createMethodCall(service.baseService(), u"/"_s, u"org.ravelo.Echo"_s,
                                               u"echo"_s);
    const QByteArray large(1 << 20, 'x'); // More than a socket takes at once.
    call << large;
    const auto answer = portals.asyncCall(call);
    EXPECT_TRUE(eventually([&] { return answer.isFinished(); }));
    EXPECT_EQ(answer.reply().arguments().value(0).toByteArray(), large);

    EXPECT_EQ(calls, QStringList{u"Register org.ravelo.Ravelo"_s})
        << "the portal does not know whose permissions it keeps";

    portals = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(u"ravelo-portals"_s);
    EXPECT_TRUE(eventually([&] {
        const auto status = readFile(u"/proc/%1/stat"_s.arg(process));
        return !status || status->contains(") Z");
    })) << "the child stays";
}

TEST(PortalBus, isNotConnectedWithoutTheChild) {
    EXPECT_FALSE(portalBus(u"/nowhere/ravelo-bus"_s).isConnected());
    QDBusConnection::disconnectFromBus(u"ravelo-portals"_s);
}

} // namespace
} // namespace ravelo

#include "PortalBusTest.moc"
