// The services that report a locked session, by stand-ins on a private bus.

#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"
#include "platform/freedesktop/session/LoginSession.h"
#include "platform/freedesktop/session/ScreenSaverBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class SessionLockTest : public testing::Test {
protected:
    void serve(const QString& name, StandIn& object) { object.serve(service_, name); }

    PrivateBus bus_;
    QDBusConnection service_ = bus_.connect(u"service"_s);
    QDBusConnection ours_ = bus_.connect(u"ours"_s);
};

TEST_F(SessionLockTest, followsScreenSavers) {
    StandIn saver([](const QDBusMessage& call) { return call.interface().contains(u"gnome"); });
    serve(u"org.gnome.ScreenSaver"_s, saver);
    ASSERT_TRUE(service_.registerService(u"org.freedesktop.ScreenSaver"_s));
    ScreenSaverBus lock(ours_);
    int calls = 0;
    const Handle listening = lock.onChange([&] { ++calls; });
    EXPECT_TRUE(eventually([&] { return lock.isLocked(); })) << "it was asked at the start";
    const auto say = [](QDBusConnection& who, const QString& interface, bool active) {
        auto signal = QDBusMessage::createSignal(u"/anywhere"_s, interface, u"ActiveChanged"_s);
        who.send(signal << active);
    };
    say(service_, u"org.freedesktop.ScreenSaver"_s, true);
    say(service_, u"org.gnome.ScreenSaver"_s, false);
    say(service_, u"org.freedesktop.ScreenSaver"_s, false);
    EXPECT_TRUE(eventually([&] { return !lock.isLocked(); }));
    EXPECT_EQ(calls, 2) << "locked until the last of them has gone";

    QDBusConnection intruder = bus_.connect(u"intruder"_s);
    say(intruder, u"org.gnome.ScreenSaver"_s, true);
    ASSERT_TRUE(intruder.registerService(u"org.mate.ScreenSaver"_s)); // Seen after the signal.
    say(intruder, u"org.mate.ScreenSaver"_s, true);
    EXPECT_TRUE(eventually([&] { return lock.isLocked(); })) << "by one that came later";
    EXPECT_EQ(calls, 3);
    ASSERT_TRUE(intruder.unregisterService(u"org.mate.ScreenSaver"_s));
    EXPECT_TRUE(eventually([&] { return !lock.isLocked(); })) << "by one that has ended";
    EXPECT_EQ(calls, 4) << "a signal of another program was believed";
}

TEST_F(SessionLockTest, followsTheLockedHint) {
    const QString path = u"/org/freedesktop/login1/session/_32"_s;
    bool locked = true;
    StandIn login([&](const QDBusMessage& call) {
        if (call.path() == "/org/freedesktop/login1/user/self"_L1) {
            QDBusArgument display;
            display.beginStructure();
            display << u"2"_s << QDBusObjectPath(path);
            display.endStructure();
            return QVariant::fromValue(QDBusVariant(QVariant::fromValue(display)));
        }
        EXPECT_EQ(call.path(), path);
        EXPECT_EQ(call.arguments(),
                  QVariantList({u"org.freedesktop.login1.Session"_s, u"LockedHint"_s}));
        return QVariant::fromValue(QDBusVariant(locked));
    });
    serve(u"org.freedesktop.login1"_s, login);
    LoginSession lock(ours_);
    EXPECT_TRUE(eventually([&] { return lock.isLocked(); })) << "it was asked at the start";
    const auto change = [&](const QString& of, bool to) {
        auto signal = QDBusMessage::createSignal(of, u"org.freedesktop.DBus.Properties"_s,
                                                 u"PropertiesChanged"_s);
        signal << u"org.freedesktop.login1.Session"_s << QVariantMap{{u"LockedHint"_s, to}}
               << QStringList();
        service_.send(signal);
    };
    change(path, false);
    EXPECT_TRUE(eventually([&] { return !lock.isLocked(); }));
    change(u"/org/freedesktop/login1/session/another"_s, true);
    change(path, true);
    EXPECT_TRUE(eventually([&] { return lock.isLocked(); }));
}

TEST_F(SessionLockTest, isUnlockedWithoutAnyService) {
    const LoginSession session(ours_);
    const ScreenSaverBus saver(ours_);
    ours_.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                              u"org.freedesktop.DBus"_s, u"GetId"_s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(session.isLocked());
    EXPECT_FALSE(saver.isLocked());
}

} // namespace
} // namespace ravelo
