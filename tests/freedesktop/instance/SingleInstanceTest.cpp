// A running program and one that sends it a request: on a private bus, and without a bus.

#include "freedesktop/PrivateBus.h"
#include "platform/freedesktop/instance/BusInstance.h"
#include "platform/freedesktop/instance/SocketInstance.h"

#include <QDBusMessage>
#include <QLocalSocket>

#include <atomic>
#include <functional>
#include <thread>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

/// The result of `call` on a thread of its own, while the event loop runs here.
template <typename Value>
Value elsewhere(const std::function<Value()>& call) {
    Value value{};
    std::atomic<bool> done = false;
    std::thread thread([&] {
        value = call();
        done = true;
    });
    EXPECT_TRUE(eventually([&] { return done.load(); }));
    thread.join();
    return value;
}

/// The two ways, to run the same tests on.
struct Way {
    const char* name;
    std::unique_ptr<SingleInstance> (*claim)(PrivateBus& bus);
    std::optional<Answer> (*ask)(PrivateBus& bus, const QStringList& request,
                                 const QByteArray& token, std::chrono::milliseconds timeout);

    friend void PrintTo(const Way& way, std::ostream* out) { *out << way.name; }
};

const Way overBus{"Bus",
                  [](PrivateBus& bus) -> std::unique_ptr<SingleInstance> {
                      static int claims = 0;
                      return BusInstance::claim(bus.connect(u"claims %1"_s.arg(++claims)));
                  },
                  [](PrivateBus& bus, const QStringList& request, const QByteArray& token,
                     std::chrono::milliseconds timeout) {
                      return BusInstance::ask(bus.connect(u"asks"_s), request, token, timeout);
                  }};
const Way overSocket{
    "Socket",
    [](PrivateBus& /*bus*/) -> std::unique_ptr<SingleInstance> { return SocketInstance::claim(); },
    [](PrivateBus& /*bus*/, const QStringList& request, const QByteArray& token,
       std::chrono::milliseconds timeout) {
        return SocketInstance::ask(request, token, timeout);
    }};

class SingleInstanceTest : public testing::Test {
public:
    SingleInstanceTest() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime_.path())); }

    ~SingleInstanceTest() override { qunsetenv("XDG_RUNTIME_DIR"); }

    SingleInstanceTest(const SingleInstanceTest&) = delete;
    SingleInstanceTest& operator=(const SingleInstanceTest&) = delete;

protected:
    QTemporaryDir runtime_;
    PrivateBus bus_;
};

class EitherWay : public SingleInstanceTest, public testing::WithParamInterface<Way> {
protected:
    std::unique_ptr<SingleInstance> claim() { return GetParam().claim(bus_); }

    std::optional<Answer> ask(const QStringList& request, const QByteArray& token = {}) {
        return elsewhere<std::optional<Answer>>(
            [&] { return GetParam().ask(bus_, request, token, 20s); });
    }
};

TEST_P(EitherWay, AnswersRequests) {
    EXPECT_EQ(ask({u"show"_s}), std::nullopt) << "none is running";
    const auto instance = claim();
    ASSERT_TRUE(instance);
    EXPECT_FALSE(claim()) << "one is running";
    EXPECT_EQ(ask({u"show"_s}).value().status, 1) << "it is not ready";

    QStringList asked;
    QByteArray token;
    Answer answer{2, QByteArray("two\0\xff\n", 6), u"line\nline ü"_s};
    instance->onRequest = [&](const QStringList& request, const QByteArray& given) {
        asked = request;
        token = given;
        return answer;
    };
    const QStringList odd = {u"a b"_s, u""_s, u"\"'\\\n\t"_s, u"\U0001F345"_s, u"-0"_s};
    EXPECT_EQ(ask(odd), answer);
    EXPECT_EQ(asked, odd);
    EXPECT_EQ(token, "");
    EXPECT_EQ(ask(odd, "a token"), answer);
    EXPECT_EQ(asked, odd);
    EXPECT_EQ(token, "a token");
    answer = {0, QByteArray(3'000'000, 'x'), {}};
    EXPECT_EQ(ask({QString(1'000'000, u'ü')}), answer) << "longer than any buffer";
}

TEST_P(EitherWay, TimesOut) {
    const auto instance = claim();
    ASSERT_TRUE(instance);
    // Here, so that no event loop runs.
    EXPECT_EQ(GetParam().ask(bus_, {u"show"_s}, {}, 50ms), SingleInstance::silence());
}

INSTANTIATE_TEST_SUITE_P(Ways, EitherWay, testing::Values(overBus, overSocket),
                         [](const auto& row) { return row.param.name; });

TEST_F(SingleInstanceTest, ImplementsTheStandardInterface) {
    const auto instance = BusInstance::claim(bus_.connect(u"claims"_s));
    ASSERT_TRUE(instance);
    QStringList asked;
    QByteArray token;
    instance->onRequest = [&](const QStringList& request, const QByteArray& given) {
        asked = request;
        token = given;
        return request.contains(u"nonsense"_s) ? Answer{2, {}, u"what?"_s} : Answer();
    };
    QDBusConnection bus = bus_.connect(u"desktop"_s);
    const auto call = [&](const QString& method, const QVariantList& arguments) {
        auto message =
            QDBusMessage::createMethodCall(u"org.ravelo.Ravelo"_s, u"/org/ravelo/Ravelo"_s,
                                           u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        return elsewhere<QDBusMessage>([&] { return bus.call(message); });
    };
    const QStringList uris = {u"file:///a%20b"_s, u"file:///c"_s};
    EXPECT_EQ(call(u"Activate"_s, {QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(asked, QStringList{u"show"_s});
    EXPECT_EQ(call(u"Open"_s, {uris, QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(asked, QStringList{u"open"_s} + uris);
    for (const auto& key : {u"activation-token"_s, u"desktop-startup-id"_s}) {
        const QVariantMap platformData{{key, key}};
        EXPECT_EQ(call(u"ActivateAction"_s, {u"toggle"_s, QVariantList(), platformData}).type(),
                  QDBusMessage::ReplyMessage);
        EXPECT_EQ(asked, QStringList{u"toggle"_s});
        EXPECT_EQ(token, key.toUtf8());
    }
    EXPECT_EQ(
        call(u"ActivateAction"_s, {u"nonsense"_s, QVariantList(), QVariantMap()}).errorMessage(),
        u"what?"_s);
}

TEST_F(SingleInstanceTest, HasAPrivateSocketAndRefusesInvalidRequests) {
    const auto instance = SocketInstance::claim();
    ASSERT_TRUE(instance);
    instance->onRequest = [](const QStringList&, const QByteArray&) {
        ADD_FAILURE() << "that was no request";
        return Answer();
    };
    const QFileInfoList files =
        QDir(runtime_.path()).entryInfoList(QDir::Files | QDir::System, QDir::Name);
    ASSERT_EQ(files.size(), 2) << "the socket, and its lock";
    EXPECT_FALSE(files.first().permissions() &
                 (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther));
    QLocalSocket socket;
    socket.connectToServer(files.first().filePath());
    socket.write("{\"no\":\"list\"}\n\xff\0[\n");
    EXPECT_TRUE(eventually([&] { return socket.canReadLine(); }));
    EXPECT_TRUE(socket.readLine().contains("\"status\":2"));
}

TEST_F(SingleInstanceTest, UsesAPrivateCacheFolderWithoutARuntimeFolder) {
    const QString cache = runtime_.filePath(u"cache"_s);
    ASSERT_TRUE(QDir().mkpath(cache));
    const auto open =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(cache, open));
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache));
    for (const QString& unfit : {u"/nowhere"_s, cache}) { // Others could enter the second.
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(unfit));
        EXPECT_TRUE(SocketInstance::claim());
    }
    before.isNull() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", before);
    EXPECT_TRUE(QFile::permissions(cache) & QFile::ExeOther) << "the cache became private";
    EXPECT_FALSE(QFile::permissions(cache + u"/ravelo"_s) & (QFile::ExeOther | QFile::ExeGroup));
}

} // namespace
} // namespace ravelo
