// Typing by the remote desktop portal: the real child, with a stand-in for the portal on a bus of
// its own.

#include "platform/freedesktop/portals/PortalKeyboard.h"
#include "fakes/MemoryPreferences.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <unistd.h>

namespace ravelo {
namespace {

using namespace Qt::StringLiterals;

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString remoteDesktop = u"org.freedesktop.portal.RemoteDesktop"_s;
const QString session = u"/org/freedesktop/portal/desktop/session/it"_s;

/// Answers requests by signals, as the real one; its user allows or refuses at once.
class Portal {
public:
    explicit Portal(PrivateBus& bus) : connection_(bus.connect(u"portal"_s)) {
        standIn_.serve(connection_, service);
    }

    void closeSession() {
        connection_.send(
            QDBusMessage::createSignal(session, u"org.freedesktop.portal.Session"_s, u"Closed"_s));
    }

    /// Answers what was `held`.
    void release() {
        for (const QDBusMessage& signal : std::exchange(waiting_, {})) {
            connection_.send(signal);
        }
    }

    [[nodiscard]] bool hasCaller() const {
        return connection_.interface()->isServiceRegistered(caller);
    }

    QDBusConnection& connection() { return connection_; }

    uint version = 2;
    uint response = 0;  ///< To Start: 1 if the user cancels, 2 if no dialog could be shown.
    uint devices = 1;   ///< The user may allow less.
    bool held = false;  ///< The user thinks.
    QString token;      ///< For the next session.
    QVariantMap wanted; ///< The options for the devices.
    QStringList calls;
    QStringList
        keys;       ///< "65507 1" if Control goes down, "code 47 1" if the key with this code does.
    QString caller; ///< Of the last call.
    uint callersPid = 0;

private:
    QVariant answer(const QDBusMessage& call) {
        caller = call.service();
        callersPid = connection_.interface()->servicePid(caller);
        const QVariantList arguments = call.arguments();
        if (call.member() == u"Get") {
            return QVariant::fromValue(QDBusVariant(version));
        }
        if (call.member().startsWith(u"NotifyKeyboard")) {
            const QString kind = call.member().endsWith(u"Keycode") ? u"code "_s : QString();
            const QString key = QString::number(arguments.value(2).toInt());
            keys.append(kind + key + u' ' + QString::number(arguments.value(3).toUInt()));
            return {};
        }
        calls.append(call.member());
        if (call.interface() != remoteDesktop) {
            return {};
        }
        return answerRequest(call, qdbus_cast<QVariantMap>(arguments.last()));
    }

    QVariant answerRequest(const QDBusMessage& call, const QVariantMap& options) {
        const QString sender = call.service().mid(1).replace(u'.', u'_');
        const QString request =
            path + u"/request/"_s + sender + u'/' + options.value(u"handle_token"_s).toString();
        const bool starts = call.member() == u"Start";
        QVariantMap results;
        if (call.member() == u"CreateSession") {
            results.insert(u"session_handle"_s, session);
        } else if (call.member() == u"SelectDevices") {
            wanted = options;
        } else {
            results.insert(u"devices"_s, devices);
            if (!token.isEmpty()) {
                results.insert(u"restore_token"_s, token);
            }
        }
        auto signal =
            QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << (starts ? response : 0U) << results;
        if (starts && held) {
            waiting_.append(signal);
        } else {
            connection_.send(signal);
        }
        return QVariant::fromValue(QDBusObjectPath(request));
    }

    QDBusConnection connection_;
    QList<QDBusMessage> waiting_;
    StandIn standIn_{[this](const QDBusMessage& call) {
        return std::optional(answer(call));
    }};
};

class PortalKeyboardTest : public testing::Test {
public:
    /// Whether it opens.
    bool open() {
        std::optional<bool> opened;
        const Handle opening = keyboard.open([&](bool is) { opened = is; });
        EXPECT_FALSE(opened) << "answered from within the call";
        EXPECT_TRUE(eventually([&] { return opened.has_value(); }));
        return opened.value_or(false);
    }

    bool childIsGone(const Portal& portal) {
        return eventually([&] { return !portal.hasCaller(); });
    }

    static QProcessEnvironment environment(const QString& address) {
        QProcessEnvironment environment;
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
        return environment;
    }

    PrivateBus bus;
    MemoryPreferences preferences;
    PortalKeyboard keyboard{u"" RAVELO_PORTAL ""_s, environment(bus.address()), preferences};
};

using Letters = RemoteKeyboard::Letters;

const QStringList controlV = {u"65507 1"_s, u"118 1"_s, u"118 0"_s, u"65507 0"_s};

TEST_F(PortalKeyboardTest, TypesInASessionOfItsOwnAndKeepsTheTokenForTheNext) {
    Portal portal(bus);
    portal.token = u"first"_s;
    EXPECT_EQ(keyboard.permission(), TypingPermission::unasked);
    ASSERT_TRUE(open());
    EXPECT_EQ(portal.wanted.value(u"types"_s).toUInt(), 1U) << "the keyboard and nothing else";
    EXPECT_EQ(portal.wanted.value(u"persist_mode"_s).toUInt(), 2U);
    EXPECT_FALSE(portal.wanted.contains(u"restore_token"_s));
    EXPECT_NE(portal.callersPid, static_cast<uint>(getpid())) << "the portal may not look at us";
    EXPECT_EQ(keyboard.permission(), TypingPermission::given);
    keyboard.type(PasteChord::shiftInsert, Letters::byLayout);
    keyboard.type(PasteChord::controlV, Letters::byLayout);
    keyboard.close();
    EXPECT_TRUE(childIsGone(portal)) << "the session goes on";
    EXPECT_EQ(portal.keys, controlV) << "the last keys are typed before it ends";

    portal.token = u"second"_s;
    ASSERT_TRUE(open());
    EXPECT_EQ(portal.wanted.value(u"restore_token"_s).toString(), u"first"_s);
    EXPECT_EQ(preferences.value(u"typingToken"_s).toString(), u"second"_s)
        << "each token is good for one session";
    portal.keys.clear();
    keyboard.type(PasteChord::controlShiftV, Letters::byPlace);
    EXPECT_TRUE(eventually([&] { return portal.keys.size() == 6; }));
    EXPECT_EQ(portal.keys, (QStringList{u"65507 1"_s, u"65505 1"_s, u"code 47 1"_s, u"code 47 0"_s,
                                        u"65505 0"_s, u"65507 0"_s}));
}

TEST_F(PortalKeyboardTest, StaysOpenWhereThePortalWouldAskEachTime) {
    Portal portal(bus);
    portal.version = 1;
    ASSERT_TRUE(open());
    EXPECT_EQ(portal.wanted.keys(), (QStringList{u"handle_token"_s, u"types"_s}))
        << "this version does not know tokens";
    keyboard.close();
    portal.calls.clear();
    ASSERT_TRUE(open());
    EXPECT_EQ(portal.calls, QStringList()) << "the user was asked again";
    keyboard.type(PasteChord::controlV, Letters::byLayout);
    EXPECT_TRUE(eventually([&] { return portal.keys == controlV; }));

    portal.closeSession();
    EXPECT_TRUE(eventually([&] { return keyboard.permission() == TypingPermission::unasked; }))
        << "the session has gone, by its sign in the desktop's bar";
    EXPECT_TRUE(childIsGone(portal));
    ASSERT_TRUE(open());
    EXPECT_TRUE(portal.calls.contains(u"Start"_s));

    ASSERT_TRUE(portal.connection().unregisterService(service));
    EXPECT_TRUE(eventually([&] { return keyboard.permission() == TypingPermission::unasked; }))
        << "the portal has gone";
    EXPECT_FALSE(open());
    ASSERT_TRUE(portal.connection().registerService(service));
    EXPECT_TRUE(open()) << "a portal that was started again";
}

TEST_F(PortalKeyboardTest, FailsWithoutConsentAndRemembersOnlyARefusal) {
    EXPECT_FALSE(open()) << "there is no portal";
    EXPECT_EQ(keyboard.permission(), TypingPermission::unavailable);
    Portal portal(bus);

    struct Row {
        const char* what;
        uint version;
        uint response;
        uint devices;
        TypingPermission permission;
    };

    const Row rows[] = {
        {"another interface missing", 0, 0, 1, TypingPermission::unavailable},
        {"nobody could ask", 2, 2, 1, TypingPermission::unavailable},
        {"cancelled", 2, 1, 1, TypingPermission::refused},
        {"cancelled, version 1", 1, 1, 1, TypingPermission::refused},
        {"a screen, but not the keyboard", 2, 0, 0, TypingPermission::refused},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        portal.version = row.version;
        portal.response = row.response;
        portal.devices = row.devices;
        EXPECT_FALSE(open());
        EXPECT_EQ(keyboard.permission(), row.permission);
        EXPECT_TRUE(childIsGone(portal));
        portal.calls.clear();
        const bool refused = row.permission == TypingPermission::refused;
        EXPECT_FALSE(open());
        EXPECT_EQ(portal.calls.isEmpty(), refused) << "only a refusal is final";
        keyboard.forgetRefusal();
    }
    portal.response = 0;
    portal.devices = 1;
    EXPECT_EQ(keyboard.permission(), TypingPermission::unasked);
    EXPECT_TRUE(open()) << "asked again, the user allows it";
}

TEST_F(PortalKeyboardTest, WaitsForTheUserAndWithdrawsTheQuestion) {
    Portal portal(bus);
    portal.held = true;
    int ends = 0;
    Handle opening = keyboard.open([&](bool) { ++ends; });
    EXPECT_TRUE(eventually([&] { return portal.calls.contains(u"Start"_s); }));
    portal.calls.clear();
    std::optional<bool> opened;
    opening = keyboard.open([&](bool is) { opened = is; });
    portal.release();
    EXPECT_TRUE(eventually([&] { return opened == true; })) << "it waits for the same answer";
    EXPECT_EQ(ends, 0) << "the handle was dropped";
    EXPECT_EQ(portal.calls, QStringList());
    portal.closeSession();
    EXPECT_TRUE(eventually([&] { return keyboard.permission() == TypingPermission::unasked; }));

    opening = keyboard.open([&](bool) { ++ends; });
    EXPECT_TRUE(eventually([&] { return portal.calls.contains(u"Start"_s); }));
    keyboard.close();
    EXPECT_TRUE(childIsGone(portal)) << "the question stays open";
    EXPECT_EQ(keyboard.permission(), TypingPermission::unasked);
    EXPECT_EQ(ends, 0);
}

TEST_F(PortalKeyboardTest, FailsWithoutItsChild) {
    PortalKeyboard childless(u"/nowhere/ravelo-portal"_s, {}, preferences);
    std::optional<bool> opened;
    const Handle opening = childless.open([&](bool is) { opened = is; });
    EXPECT_TRUE(eventually([&] { return opened == false; }));
    EXPECT_EQ(childless.permission(), TypingPermission::unavailable);
}

} // namespace
} // namespace ravelo
