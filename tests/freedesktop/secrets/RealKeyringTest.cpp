// Our key in a real keyring daemon, on a private bus.

#include "freedesktop/PrivateBus.h"
#include "platform/freedesktop/secrets/SecretKeyring.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDir>
#include <QStandardPaths>

#include <optional>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class RealKeyring : public testing::Test {
public:
    RealKeyring() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus_.address());
        environment.insert(u"HOME"_s, home_.path());
        environment.insert(u"XDG_DATA_HOME"_s, home_.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, home_.path());
        daemon_.setProcessEnvironment(environment);
        daemon_.setStandardErrorFile(QProcess::nullDevice());
    }

    ~RealKeyring() override {
        daemon_.kill();
        daemon_.waitForFinished();
    }

protected:
    using Found = Keyring::Found;

    /// With an unlocked default collection.
    void start() {
        daemon_.start(u"gnome-keyring-daemon"_s,
                      {u"--foreground"_s, u"--components=secrets"_s, u"--unlock"_s});
        daemon_.write("password");
        daemon_.closeWriteChannel();
        ASSERT_TRUE(eventually([this] { return look(); })) << "the daemon does not start";
    }

    bool look() {
        std::optional<bool> there;
        const Handle asking = keyring_.look([&](bool is) { there = is; });
        return eventually([&] { return there.has_value(); }) && *there;
    }

    Found find(const QString& service) {
        std::optional<Found> found;
        const Handle asking = keyring_.find(service, [&](const Found& one) { found = one; });
        EXPECT_TRUE(eventually([&] { return found.has_value(); }));
        return found.value_or(Found());
    }

    bool keep(const QString& service, const QByteArray& secret) {
        std::optional<Result<void>> done;
        const Handle asking = keyring_.keep(service, u"a label"_s, Secret(secret),
                                            [&](const Result<void>& kept) { done = kept; });
        EXPECT_TRUE(eventually([&] { return done.has_value(); }));
        return done && *done;
    }

    QTemporaryDir home_;
    PrivateBus bus_;
    QProcess daemon_;
    SecretKeyring keyring_{bus_.connect(u"ours"_s)};
};

TEST_F(RealKeyring, KeepsGivesAndLocksASecret) {
    if (QStandardPaths::findExecutable(u"gnome-keyring-daemon"_s).isEmpty()) {
        GTEST_SKIP() << "gnome-keyring is not installed";
    }
    EXPECT_FALSE(look()) << "there is none yet";
    EXPECT_EQ(find(u"a service"_s).kind, Found::Kind::unavailable);
    start();
    EXPECT_EQ(find(u"a service"_s).kind, Found::Kind::missing);
    ASSERT_TRUE(keep(u"a service"_s, "0011"));
    ASSERT_TRUE(keep(u"a service"_s, "2233")) << "in place of the first";
    ASSERT_TRUE(keep(u"another"_s, "4455"));
    EXPECT_EQ(find(u"a service"_s).secret.bytes(), "2233");

    int changes = 0;
    const Handle following = keyring_.onChange([&] { ++changes; });
    const QDBusConnection bus = bus_.connect(u"locks"_s);
    auto lock =
        QDBusMessage::createMethodCall(u"org.freedesktop.secrets"_s, u"/org/freedesktop/secrets"_s,
                                       u"org.freedesktop.Secret.Service"_s, u"Lock"_s);
    lock << QVariant::fromValue(
        QList<QDBusObjectPath>{QDBusObjectPath(u"/org/freedesktop/secrets/aliases/default"_s)});
    ASSERT_EQ(bus.call(lock).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(eventually([&] { return changes > 0; })) << "it reports that it was locked";
    EXPECT_EQ(find(u"a service"_s).kind, Found::Kind::locked);
    EXPECT_EQ(find(u"never kept"_s).kind, Found::Kind::locked) << "it cannot know";
}

TEST_F(RealKeyring, ForgetsASecret) {
    if (QStandardPaths::findExecutable(u"gnome-keyring-daemon"_s).isEmpty()) {
        GTEST_SKIP() << "gnome-keyring is not installed";
    }
    start();
    ASSERT_TRUE(keep(u"a service"_s, "0011"));
    for (int i = 0; i < 2; ++i) {
        std::optional<Result<void>> done;
        const Handle asking =
            keyring_.remove(u"a service"_s, [&](const Result<void>& removed) { done = removed; });
        ASSERT_TRUE(eventually([&] { return done.has_value(); }));
        EXPECT_TRUE(*done) << "time " << i;
    }
    EXPECT_EQ(find(u"a service"_s).kind, Found::Kind::missing);
}

} // namespace

} // namespace ravelo
