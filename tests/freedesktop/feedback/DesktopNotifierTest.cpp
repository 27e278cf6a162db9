// Against a notification service in Python, on a private bus.

#include "platform/freedesktop/feedback/DesktopNotifier.h"

#include "freedesktop/PrivateBus.h"

#include <QDBusMessage>
#include <QJsonArray>
#include <QJsonDocument>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class DesktopNotifierTest : public testing::Test {
public:
    ~DesktopNotifierTest() override {
        server_.closeWriteChannel();
        server_.waitForFinished();
    }

protected:
    void startServer() {
        server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server_.start(u"/usr/bin/python3"_s, {RAVELO_NOTIFICATION_SERVER, bus_.address()});
        ASSERT_EQ(nextLine(), "ready");
    }

    /// What the server prints next.
    QByteArray nextLine() {
        EXPECT_TRUE(eventually([&] { return server_.canReadLine(); })) << "nothing was reported";
        return server_.readLine().trimmed();
    }

    [[nodiscard]] QJsonArray nextCall() { return QJsonDocument::fromJson(nextLine()).array(); }

    void command(const QByteArray& line) {
        server_.write(line + '\n');
        if (line != "plain") {
            nextLine();
        }
    }

    [[nodiscard]] std::optional<bool> available() {
        std::optional<bool> result;
        const Handle looking = notifier_.look([&](bool available) { result = available; });
        EXPECT_TRUE(eventually([&] { return result.has_value(); }));
        return result;
    }

    [[nodiscard]] Notification timer(const QString& text) {
        return {u"timer"_s,
                u"Over"_s,
                text,
                {{u"Again"_s,
                  [this] {
                      ran_ += 'a';
                  }},
                 {u"More"_s, [this] {
                      ran_ += 'm';
                  }}}};
    }

    PrivateBus bus_;
    QProcess server_;
    DesktopNotifier notifier_{bus_.connect(u"ours"_s)};
    std::string ran_;
};

TEST_F(DesktopNotifierTest, showsReplacesAndRunsActions) {
    startServer();
    EXPECT_EQ(available(), true);
    notifier_.show(timer(u"a < b"_s));
    EXPECT_EQ(nextCall(), (QJsonArray{1, 0, u"Over"_s, u"a &lt; b"_s,
                                      QJsonArray{u"0"_s, u"Again"_s, u"1"_s, u"More"_s},
                                      u"org.ravelo.Ravelo"_s, -1}));
    notifier_.show({u"files"_s, u"Files"_s, {}, {}});
    EXPECT_EQ(nextCall()[0], 2) << "another key";
    EXPECT_EQ(available(), true); // A round trip: the ids are known.
    notifier_.show(timer(u"b"_s));
    EXPECT_EQ(nextCall()[1], 1) << "replaces the one with its key";
    EXPECT_EQ(available(), true);

    const QDBusConnection intruder = bus_.connect(u"intruder"_s);
    auto forged =
        QDBusMessage::createSignal(u"/org/freedesktop/Notifications"_s,
                                   u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s);
    intruder.send(forged << 1u << u"0"_s);
    for (const char* line : {"act 1 7", "act 1 default", "act 9 0", "act 2 0", "act 1 1"}) {
        command(line);
    }
    EXPECT_TRUE(eventually([&] { return !ran_.empty(); }));
    command("act 1 0");
    EXPECT_EQ(available(), true);
    EXPECT_EQ(ran_, "m") << "one action, once, and only by the service";

    notifier_.show(timer(u"c"_s));
    EXPECT_EQ(nextCall()[0], 3) << "the old one is over";
    EXPECT_EQ(available(), true);
    command("close 3");
    command("act 3 0");
    EXPECT_EQ(available(), true);
    EXPECT_EQ(ran_, "m") << "it was closed";

    command("plain");
    QJsonArray plain;
    EXPECT_TRUE(eventually([&] {
        notifier_.show(timer(u"a < b"_s));
        plain = nextCall();
        return plain[4].isArray() && plain[4].toArray().isEmpty();
    })) << "the service has no actions";
    EXPECT_EQ(plain[3], u"a < b"_s);
}

TEST_F(DesktopNotifierTest, needsAService) {
    notifier_.show(timer(u"nobody sees it"_s));
    EXPECT_EQ(available(), false);
    startServer();
    EXPECT_EQ(available(), true);
    notifier_.show(timer(u"now"_s));
    EXPECT_EQ(nextCall()[3], u"now"_s);
}

} // namespace
} // namespace ravelo
