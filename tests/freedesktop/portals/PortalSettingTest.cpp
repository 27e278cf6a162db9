// The settings portal, with a stand-in for it on a bus of its own.

#include "platform/freedesktop/portals/PortalSetting.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

#include <QDBusVariant>

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

TEST(PortalSetting, isReadAndFollowed) {
    PrivateBus bus;
    QDBusConnection service = bus.connect(u"service"_s);
    StandIn portal([](const QDBusMessage& call) {
        const bool animations = call.arguments().value(1) == u"enable-animations"_s;
        const QVariant value = animations ? QVariant(false) : QVariant(u"Papirus"_s);
        // Twice, as the real one.
        return QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(value))));
    });
    portal.serve(service, u"org.freedesktop.portal.Desktop"_s);
    const QDBusConnection ours = bus.connect(u"ours"_s);
    PortalMotionPreference motion(ours);
    const PortalIconPreference icons(ours);
    EXPECT_FALSE(motion.isReduced()) << "before the answer";
    int calls = 0;
    const Handle listening = motion.onChange([&] { ++calls; });
    EXPECT_TRUE(eventually([&] { return motion.isReduced() && icons.theme() == u"Papirus"_s; }));

    auto signal =
        QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                   u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
    signal << u"org.gnome.desktop.interface"_s << u"enable-animations"_s
           << QVariant::fromValue(QDBusVariant(true));
    EXPECT_TRUE(eventually([&] {
        service.send(signal); // Again: the bus may not have been asked for it yet.
        return !motion.isReduced();
    }));
    EXPECT_EQ(calls, 2);
}

} // namespace
} // namespace ravelo
