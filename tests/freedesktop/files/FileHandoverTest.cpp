// The services that send and receive files, against stand-ins that record their calls.

#include "base/FileUrl.h"
#include "freedesktop/PrivateBus.h"
#include "freedesktop/StandIn.h"
#include "platform/freedesktop/files/KdeConnect.h"
#include "platform/freedesktop/portals/FileTransferPortal.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>

#include <algorithm>

#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Names = QMap<QString, QString>;

/// "path interface.member(signature)"
QString described(const QDBusMessage& call) {
    return call.path() + u' ' + call.interface() + u'.' + call.member() + u'(' + call.signature() +
           u')';
}

/// With more in its environment than it should pass on.
FileTransferPortal portalOn(const QString& address) {
    QProcessEnvironment environment;
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    environment.insert(u"DBUS_VERBOSE"_s, u"1"_s);
    return {u"" RAVELO_PORTAL ""_s, environment};
}

QByteArrayList readEnvironment(uint process) {
    QFile file(u"/proc/%1/environ"_s.arg(process));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArrayList variables = file.readAll().split('\0');
    variables.removeLast();
    std::ranges::sort(variables);
    return variables;
}

class FileHandover : public testing::Test {
protected:
    static void SetUpTestSuite() { qDBusRegisterMetaType<Names>(); }

    void serve(const QString& name) { standIn_.serve(service_, name); }

    QList<NearbyDevice> devices() {
        std::optional<QList<NearbyDevice>> devices;
        const Handle listing = kdeConnect_.list([&](const auto& list) { devices = list; });
        EXPECT_FALSE(devices) << "answered from within the call";
        EXPECT_TRUE(eventually([&] { return devices.has_value(); }));
        return devices.value_or(QList<NearbyDevice>());
    }

    bool send(const QString& id, const QList<QByteArray>& addresses) {
        std::optional<bool> taken;
        const Handle sending = kdeConnect_.send(id, addresses, [&](bool is) { taken = is; });
        EXPECT_TRUE(eventually([&] { return taken.has_value(); }));
        return taken.value_or(false);
    }

    QList<QUrl> retrieve(const QByteArray& key) {
        std::optional<QList<QUrl>> files;
        const Handle retrieving = portal_.retrieve(key, [&](const auto& list) { files = list; });
        EXPECT_TRUE(eventually([&] { return files.has_value(); }));
        return files.value_or(QList<QUrl>());
    }

    PrivateBus bus_;
    QDBusConnection service_ = bus_.connect(u"service"_s);
    KdeConnect kdeConnect_{bus_.connect(u"ours"_s)};
    FileTransferPortal portal_ = portalOn(bus_.address());
    std::optional<QVariant> answer_; ///< To every call; nothing hangs.
    QStringList calls_;
    QVariantList arguments_; ///< Of the last call.
    uint caller_ = 0;        ///< Process ID of the last caller.
    QByteArrayList callersEnvironment_;
    StandIn standIn_{[this](const QDBusMessage& call) {
        caller_ = service_.interface()->servicePid(call.service());
        callersEnvironment_ = readEnvironment(caller_);
        calls_.append(described(call));
        arguments_ = call.arguments();
        return answer_;
    }};
};

TEST_F(FileHandover, listsTheDevicesOfKdeConnect) {
    const QString odd = u"<b>ä & \n\u202e%1</b>"_s;
    const std::pair<QVariant, QList<NearbyDevice>> cases[] = {
        {QVariant::fromValue(Names()), {}},
        {QVariant::fromValue(Names{{u"a_1"_s, u"Pixel"_s}}), {{u"a_1"_s, u"Pixel"_s}}},
        {QVariant::fromValue(Names{{u"a"_s, odd}, {u"b/../c"_s, u"no path"_s}, {u"d"_s, {}}}),
         {{u"a"_s, odd}, {u"d"_s, {}}}},
        {QVariant(u"what"_s), {}},
    };
    serve(u"org.kde.kdeconnect"_s);
    for (const auto& [answer, expected] : cases) {
        answer_ = answer;
        calls_.clear();
        EXPECT_EQ(devices(), expected);
        EXPECT_EQ(calls_,
                  QStringList{u"/modules/kdeconnect org.kde.kdeconnect.daemon.deviceNames(bb)"_s});
        EXPECT_EQ(arguments_, QVariantList({true, true})) << "reachable and paired";
    }
}

TEST_F(FileHandover, sendsExactAddresses) {
    EXPECT_EQ(devices(), QList<NearbyDevice>()) << "it is not running";
    EXPECT_FALSE(send(u"a_1"_s, {"file:///a"}));
    answer_ = QVariant();
    serve(u"org.kde.kdeconnect"_s);
    const QStringList addresses = {u"file:///a%20b%25%28"_s, u"file:///%FF%0A"_s, u"file:///c"_s};
    EXPECT_TRUE(send(u"a_1"_s, {"file:///a%20b%25%28", "file:///%FF%0A", "file:///c"}));
    EXPECT_EQ(calls_, QStringList{u"/modules/kdeconnect/devices/a_1/share "
                                  "org.kde.kdeconnect.device.share.shareUrls(as)"_s});
    EXPECT_EQ(arguments_, QVariantList{addresses});
}

TEST_F(FileHandover, redeemsAKey) {
    EXPECT_EQ(retrieve("key"), QList<QUrl>()) << "no portal";
    answer_ = QStringList{u"/run/user/1/doc/a1/x y%20"_s, u"relative"_s, u"/ä"_s};
    serve(u"org.freedesktop.portal.Documents"_s);
    EXPECT_EQ(retrieve("key \xc3\xa4"),
              (QList<QUrl>{fileUrl("/run/user/1/doc/a1/x y%20"), fileUrl("/\xc3\xa4")}));
    EXPECT_EQ(calls_, QStringList{u"/org/freedesktop/portal/documents "
                                  "org.freedesktop.portal.FileTransfer.RetrieveFiles(sa{sv})"_s});
    EXPECT_EQ(arguments_.value(0), QVariant(u"key ä"_s));
    EXPECT_NE(caller_, static_cast<uint>(getpid())) << "the portal may not look at us";
    EXPECT_EQ(
        callersEnvironment_,
        (QByteArrayList{"DBUS_SESSION_BUS_ADDRESS=" + bus_.address().toUtf8(), "LC_ALL=C.UTF-8"}));
    answer_ = QVariant(u"what"_s);
    EXPECT_EQ(retrieve("key"), QList<QUrl>());
}

TEST_F(FileHandover, everyCallTimesOut) {
    serve(u"org.kde.kdeconnect"_s);
    ASSERT_TRUE(service_.registerService(u"org.freedesktop.portal.Documents"_s));
    int ends = 0;
    const auto noFiles = [&](const auto& list) {
        ends += list.isEmpty() ? 1 : 0;
    };
    const auto notSent = [&](bool sent) {
        ends += sent ? 0 : 1;
    };
    const Handle hanging[] = {kdeConnect_.list(noFiles), kdeConnect_.send(u"a"_s, {}, notSent),
                              portal_.retrieve("key", noFiles)};
    const auto dead = QDBusConnection::connectToBus(u"unix:path=/nowhere"_s, u"dead"_s);
    KdeConnect kdeConnect(dead);
    FileTransferPortal portal = portalOn(u"unix:path=/nowhere"_s);
    FileTransferPortal noChild(u"/nowhere/ravelo-portal"_s, {});
    const Handle gone[] = {kdeConnect.list(noFiles), kdeConnect.send(u"a"_s, {}, notSent),
                           portal.retrieve("key", noFiles), noChild.retrieve("key", noFiles)};
    (void)portal_.retrieve("key", [](const auto&) { ADD_FAILURE() << "the handle was dropped"; });
    (void)kdeConnect.send(u"a"_s, {}, [](bool) { ADD_FAILURE() << "the handle was dropped"; });
    EXPECT_EQ(ends, 0) << "answered from within the call";
    EXPECT_TRUE(eventually([&] { return ends == 7; }));
}

} // namespace
} // namespace ravelo
