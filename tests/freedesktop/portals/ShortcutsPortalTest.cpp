// The portal for global shortcuts, with a stand-in for it on a bus of its own.

#include "platform/freedesktop/portals/ShortcutsPortal.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace ravelo {

/// As portals list them.
struct Listed {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Listed& one) {
    argument.beginStructure();
    argument << one.id << one.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Listed& one) {
    argument.beginStructure();
    argument >> one.id >> one.properties;
    argument.endStructure();
    return argument;
}

} // namespace ravelo

Q_DECLARE_METATYPE(ravelo::Listed)

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString shortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString session = u"/org/freedesktop/portal/desktop/session/it"_s;

/// Answers requests by signals, as the real one, and keeps the keys of each ID.
class Portal {
public:
    explicit Portal(PrivateBus& bus) : connection_(bus.connect(u"portal"_s)) {
        qDBusRegisterMetaType<Listed>();
        qDBusRegisterMetaType<QList<Listed>>();
        standIn_.serve(connection_, service);
    }

    void press(const QString& id, const QString& token = {}) {
        auto signal = QDBusMessage::createSignal(path, shortcuts, u"Activated"_s);
        signal << QVariant::fromValue(QDBusObjectPath(session)) << id << quint64(1)
               << QVariantMap{{u"activation_token"_s, token}};
        connection_.send(signal);
    }

    /// In its settings.
    void change(const QString& description) {
        known[0].properties[u"trigger_description"_s] = description;
        auto signal = QDBusMessage::createSignal(path, shortcuts, u"ShortcutsChanged"_s);
        signal << QVariant::fromValue(QDBusObjectPath(session)) << QVariant::fromValue(known);
        connection_.send(signal);
    }

    /// Ends a session by itself.
    void close() {
        connection_.send(
            QDBusMessage::createSignal(session, u"org.freedesktop.portal.Session"_s, u"Closed"_s));
    }

    /// Answers what was `held`.
    void release() {
        held = false;
        for (const QDBusMessage& signal : std::exchange(waiting_, {})) {
            connection_.send(signal);
        }
    }

    bool held = false;         ///< Requests are not answered.
    uint response = 0;         ///< To requests; 1 if the user declines.
    QString assigned = u"M"_s; ///< What it calls the keys of a new ID.
    QString trigger;           ///< The preferred one of the last request.
    QList<Listed> known;
    QStringList calls;

    QDBusConnection& connection() { return connection_; }

private:
    QVariant answer(const QDBusMessage& call) {
        calls.append(call.member());
        if (call.member() == u"Get") {
            return QVariant::fromValue(QDBusVariant(1U));
        }
        if (call.interface() != shortcuts) {
            return {};
        }
        const auto options = qdbus_cast<QVariantMap>(call.arguments().constLast());
        QString sender = call.service().mid(1);
        const QString request = path + u"/request/"_s + sender.replace(u'.', u'_') + u'/' +
                                options.value(u"handle_token"_s).toString();
        QVariantMap results;
        if (call.member() == u"CreateSession") {
            results.insert(u"session_handle"_s, session);
        } else {
            if (call.member() == u"BindShortcuts") {
                bind(call);
            }
            results.insert(u"shortcuts"_s, QVariant::fromValue(known));
        }
        auto signal =
            QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << response << results;
        held ? waiting_.append(signal) : void(connection_.send(signal));
        return QVariant::fromValue(QDBusObjectPath(request));
    }

    void bind(const QDBusMessage& call) {
        known = qdbus_cast<QList<Listed>>(call.arguments().at(1));
        trigger = known[0].properties.take(u"preferred_trigger"_s).toString();
        known[0].properties.insert(u"trigger_description"_s, assigned);
    }

    QDBusConnection connection_;
    QList<QDBusMessage> waiting_;
    StandIn standIn_{[this](const QDBusMessage& call) {
        return std::optional(answer(call));
    }};
};

using State = GlobalShortcut::State;

TEST(ShortcutsPortal, RegistersKeysAndReportsPresses) {
    PrivateBus bus;
    Portal portal(bus);
    ShortcutsPortal shortcut(bus.connect(u"ours"_s));
    EXPECT_EQ(shortcut.state(), State::impossible) << "before the answer";
    QByteArrayList tokens;
    const Handle listening =
        shortcut.onPress([&](const QByteArray& token) { tokens.append(token); });
    shortcut.set(KeyCombination::fromText(u"Super+Shift+V"_s));
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
    EXPECT_EQ(portal.trigger, u"SHIFT+LOGO+v"_s);
    portal.press(u"another"_s);
    portal.press(u"toggle-SHIFT+LOGO+v"_s, u"a token"_s);
    EXPECT_TRUE(eventually([&] { return !tokens.isEmpty(); }));
    EXPECT_EQ(tokens, QByteArrayList{"a token"});
    shortcut.set(std::nullopt);
    EXPECT_EQ(shortcut.state(), State::none);
    EXPECT_TRUE(eventually([&] { return portal.calls.contains(u"Close"_s); }))
        << "the keys stay with us";
}

TEST(ShortcutsPortal, IsRefusedByTheUserAndImpossibleWithoutAPortal) {
    PrivateBus bus;
    ShortcutsPortal without(bus.connect(u"early"_s));
    without.set(KeyCombination::fromText(u"Super+V"_s));
    EXPECT_EQ(without.state(), State::impossible);
    Portal portal(bus);
    portal.response = 1;
    ShortcutsPortal shortcut(bus.connect(u"ours"_s));
    shortcut.set(KeyCombination::fromText(u"Super+V"_s));
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::refused; }));
    EXPECT_TRUE(eventually([&] { return without.state() == State::refused; }))
        << "a portal that comes later is asked, too";
}

TEST(ShortcutsPortal, IsAskedOnlyIfKeysAreSetOrItMatters) {
    PrivateBus bus;
    const Portal portal(bus);
    ShortcutsPortal unused(bus.connect(u"unused"_s));
    unused.set(std::nullopt);
    ShortcutsPortal shown(bus.connect(u"shown"_s));
    shown.ask();
    shown.ask();
    EXPECT_TRUE(eventually([&] { return shown.state() == State::none; }));
    EXPECT_EQ(portal.calls, QStringList{u"Get"_s}) << "by the one that is shown, once";
    EXPECT_EQ(unused.state(), State::impossible);
}

TEST(ShortcutsPortal, RegistersAgainWithAPortalThatStartsAgain) {
    PrivateBus bus;
    Portal portal(bus);
    ShortcutsPortal shortcut(bus.connect(u"ours"_s));
    shortcut.set(KeyCombination::fromText(u"Super+V"_s));
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
    ASSERT_TRUE(portal.connection().unregisterService(service));
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::impossible; }))
        << "its keys went with it";
    ASSERT_TRUE(portal.connection().registerService(service));
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
    EXPECT_EQ(portal.calls.count(u"Register"_s), 1) << "it asks an unknown program";
    EXPECT_EQ(portal.calls.count(u"CreateSession"_s), 2);
}

TEST(ShortcutsPortal, KnownKeysAreNotBoundAgainButOthersAre) {
    PrivateBus bus;
    Portal portal(bus);
    const auto keys = KeyCombination::fromText(u"Super+V"_s);
    for (const QString& name : {u"first"_s, u"second"_s}) {
        ShortcutsPortal shortcut(bus.connect(name));
        shortcut.set(keys);
        EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
        EXPECT_EQ(shortcut.description(), u"M"_s);
    }
    EXPECT_EQ(portal.calls.count(u"BindShortcuts"_s), 1) << "KDE shows its settings at each start";

    ShortcutsPortal shortcut(bus.connect(u"third"_s));
    shortcut.set(keys);
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
    portal.change(u"N"_s);
    EXPECT_TRUE(eventually([&] { return shortcut.description() == u"N"_s; }))
        << "the user has changed them in the desktop's settings";
    portal.assigned.clear();
    shortcut.set(KeyCombination::fromText(u"Super+J"_s));
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::unassigned; }))
        << "another program has them";
    EXPECT_EQ(portal.trigger, u"LOGO+j"_s) << "the portal keeps the old keys of an ID";
}

TEST(ShortcutsPortal, SessionsEndOnEitherSide) {
    PrivateBus bus;
    Portal portal(bus);
    ShortcutsPortal shortcut(bus.connect(u"ours"_s));
    const auto keys = KeyCombination::fromText(u"Super+V"_s);
    shortcut.set(keys);
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::registered; }));
    portal.close();
    EXPECT_TRUE(eventually([&] { return shortcut.state() == State::refused; }))
        << "the portal has ended the session";

    portal.calls.clear();
    portal.held = true;
    shortcut.set(keys);
    EXPECT_TRUE(eventually([&] { return portal.calls.contains(u"CreateSession"_s); }));
    shortcut.set(std::nullopt);
    portal.release();
    EXPECT_TRUE(eventually([&] { return portal.calls.contains(u"Close"_s); }))
        << "the late session keeps the keys";
    EXPECT_EQ(shortcut.state(), State::none);
}

} // namespace
} // namespace ravelo
