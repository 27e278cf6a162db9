// On virtual time with everything else real: a TLS server, files, a program in place of Claude
// Code.

#include "monitor/PlanUsage.h"

#include "UsageServer.h"
#include "base/Files.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeFolderChanges.h"
#include "fakes/FakeUsageSources.h"
#include "fakes/ManualScheduler.h"
#include "monitor/ClaudeEnvironment.h"
#include "platform/system/CurlClient.h"
#include "platform/system/DetachedThreads.h"
#include "platform/system/SpawnedChild.h"
#include "support/Eventually.h"
#include "support/SignalCount.h"
#include "support/TestFiles.h"

#include <QTcpServer>
#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds tick(5);
const PlanWindows inFile{UsageWindow{11, {}}, UsageWindow{22, {}}};
const PlanWindows answered{UsageWindow{41.5, {}}, UsageWindow{78, {}}};

const QByteArray goodBody = R"({"five_hour":{"utilization":41.5},"seven_day":{"utilization":78}})";

/// Records its arguments, streams, folder and environment, leaves a file behind, provides new
/// credentials, and ends.
const QByteArray claude = R"(
here=$(dirname "$0")
{ pwd; stat -c %a .; ls -A; } > "$here/place"
tr '\0' '\n' < /proc/$$/environ | sort > "$here/environment"
: > left-behind
streams=$(for stream in 0 1 2; do readlink "/proc/$$/fd/$stream"; done | tr -d '0-9\n')
{
    for argument; do printf '<%s>' "$argument"; done
    echo "$streams"
} >> "$here/runs"
[ -e "$here/next" ] && mv "$here/next" "$here/../../.claude/.credentials.json"
seq 400000  # More than a pipe holds.
seq 400000 >&2
)";

class PlanUsageTest : public testing::Test {
public:
    PlanUsageTest() {
        write(u".ravelo/usage.json"_s, R"({"rate_limits":{"five_hour":{"used_percentage":11},)"
                                       R"("seven_day":{"used_percentage":22}}})");
        setToken("token-1");
        makeProgram(path(u".local/bin/claude"_s), claude);
        server.answer = UsageServer::http("200 OK", goodBody);
        scheduler.advance(Seconds(1)); // All files are older than any answer.
    }

    [[nodiscard]] QString path(const QString& name) const { return home.filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(makeFile(path(name), bytes));
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        ASSERT_TRUE(file.setFileTime(toDateTime(scheduler.now()), QFile::FileModificationTime));
    }

    static QByteArray credentials(const QByteArray& token, const QByteArray& more = {}) {
        return R"({"claudeAiOauth":{"accessToken":")" + token + '"' + more + "}}";
    }

    void setToken(const QByteArray& token, const QByteArray& more = {}) const {
        write(u".claude/.credentials.json"_s, credentials(token, more));
    }

    [[nodiscard]] std::unique_ptr<PlanUsage> asking(HttpsClient& by,
                                                    const QString& host = u"localhost"_s,
                                                    Seconds timeout = Seconds(15),
                                                    const QByteArrayList& otherFolders = {}) {
        return std::make_unique<PlanUsage>(
            UsageQuery::Services{scheduler, files, secrets, by, children},
            QFile::encodeName(home.path()), std::make_unique<FakeFolderChanges>(),
            UsageQuery::Endpoint{server.url(host), timeout}, otherFolders);
    }

    void start(const QString& host = u"localhost"_s, Seconds timeout = Seconds(15)) {
        usage = asking(https, host, timeout);
        settle();
    }

    void settle() { settle(*usage); }

    void settle(const PlanUsage& one) {
        ASSERT_TRUE(eventually([&] {
            scheduler.advance(Seconds(0)); // Files are read.
            return !one.fetching();
        }));
    }

    /// Lets time pass tick by tick; every query ends.
    void pass(Seconds time) {
        for (Seconds passed(0); passed < time; passed += tick) {
            scheduler.advance(tick);
            settle();
        }
    }

    [[nodiscard]] PlanWindows windows() const { return {usage->session(), usage->week()}; }

    /// Variables that a renewal needs, and some that could manipulate it.
    static QProcessEnvironment environment() {
        QProcessEnvironment environment;
        for (const char* variable :
             {"ANTHROPIC_API_KEY=key", "ANTHROPIC_BASE_URL=https://example.com",
              "CLAUDE_CODE_USE_BEDROCK=1", "NODE_OPTIONS=--require=/tmp/x",
              "LD_PRELOAD=", "BASH_ENV=/tmp/x", "CLAUDE_CONFIG_DIR=/c", "HOME=/h", "LC_TIME=C",
              "https_proxy=http://proxy", "PATH=/usr/bin:/bin"}) {
            const QString text = QString::fromLatin1(variable);
            environment.insert(text.section(u'=', 0, 0), text.section(u'=', 1));
        }
        return environment;
    }

    [[nodiscard]] CurlClient client(const QStringList& options = {},
                                    const QProcessEnvironment& proxies = {}) const {
        return {"Ravelo/test", proxies, QStringList{u"--cacert"_s, server.authority()} + options};
    }

    /// Whether a new query by this client succeeds.
    [[nodiscard]] bool succeeds(HttpsClient& by, Seconds timeout = Seconds(15)) {
        const auto one = asking(by, u"localhost"_s, timeout);
        settle(*one);
        return one->liveOK();
    }

    /// One line each.
    [[nodiscard]] QByteArrayList runs() const {
        QByteArrayList lines =
            readFile(path(u".local/bin/runs"_s)).value_or(QByteArray()).split('\n');
        lines.removeLast();
        return lines;
    }

    QTemporaryDir home;
    UsageServer server;
    ManualScheduler scheduler;
    FakeDetachedJobs files{scheduler};
    FakeSecretStore secrets;
    DetachedThreads threads;
    CurlClient https = client();
    SpawnedChild children{threads, renewalEnvironment(environment()),
                          QFile::encodeName(path(u"cache/renewal"_s))};
    std::unique_ptr<PlanUsage> usage;
};

TEST_F(PlanUsageTest, countsAGoodAnswerElseTheFile) {
    const auto http = [](const char* status, const QByteArray& header = {}) {
        return UsageServer::http(status, goodBody, header);
    };

    struct Case {
        const char* name;
        QByteArray answer;
        std::optional<PlanWindows> live = {};
        int renewals = 0;
    };

    const Case cases[] = {
        {"both", http("200 OK"), answered},
        {"no object", UsageServer::http("200 OK", "[]")},
        {"no HTTP", "garbage\r\n\r\n"},
        {"cut", http("200 OK").chopped(1)},
        {"created", http("201 Created")},
        {"unauthorized", http("401 Unauthorized", "WWW-Authenticate: Bearer\r\n"), {}, 1},
        {"asks for a password",
         http("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n"),
         {},
         1},
        {"too many", http("429 Too Many Requests")},
        {"broken", http("500 Internal Server Error")},
        {"five megabytes", UsageServer::http("200 OK", goodBody + QByteArray(5'000'000, ' '))},
        {"hangs", ""}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        server.answer = c.answer;
        QFile::remove(path(u".local/bin/runs"_s));
        start(u"localhost"_s, c.answer.isEmpty() ? Seconds(0.3) : Seconds(15));
        EXPECT_EQ(usage->liveOK(), c.live.has_value());
        EXPECT_TRUE(windows() == c.live.value_or(inFile));
        EXPECT_EQ(runs().size(), c.renewals);
    }
}

QByteArray ok(const QByteArray& body) {
    return UsageServer::http("200 OK", body);
}

TEST_F(PlanUsageTest, sendsTheTokenAndAUserAgent) {
    start();
    const QByteArrayList lines = server.requests().value(0).split('\n');
    EXPECT_EQ(lines.value(0), "GET /api/oauth/usage HTTP/1.1\r");
    EXPECT_TRUE(
        lines.contains("Host: " + server.url(u"localhost"_s).authority().toLatin1() + '\r'));
    for (const char* header : {"Authorization: Bearer token-1\r", "User-Agent: Ravelo/test\r",
                               "anthropic-beta: oauth-2025-04-20\r"}) {
        EXPECT_TRUE(lines.contains(header)) << header;
    }
}

TEST_F(PlanUsageTest, sendsTheTokenNowhereElse) {
    QTcpServer other;
    ASSERT_TRUE(other.listen(QHostAddress::LocalHost));
    server.answer = UsageServer::http(
        "302 Found", goodBody,
        "Location: https://127.0.0.1:" + QByteArray::number(other.serverPort()) + "/\r\n");
    start();
    EXPECT_FALSE(usage->liveOK());
    EXPECT_FALSE(other.hasPendingConnections()) << "the redirection was followed";

    start(u"127.0.0.1"_s);
    EXPECT_FALSE(usage->liveOK());
    EXPECT_EQ(server.requests().size(), 1) << "the certificate is for another host";

    CurlClient systemTrust("Ravelo/test", {});
    EXPECT_FALSE(succeeds(systemTrust));
    EXPECT_EQ(server.requests().size(), 1) << "the certificate is not trusted";
}

TEST_F(PlanUsageTest, usesTheProxyOfTheEnvironment) {
    Proxy proxy;
    const std::pair<const char*, const char*> cases[] = {{"", "CONNECT"}, {"localhost", ""}};
    for (const auto& [exception, connect] : cases) {
        QProcessEnvironment environment;
        environment.insert(u"https_proxy"_s, proxy.url());
        environment.insert(u"no_proxy"_s, QString::fromLatin1(exception));
        proxy.received.clear();
        CurlClient proxied = client({}, environment);
        EXPECT_TRUE(succeeds(proxied));
        EXPECT_TRUE(proxy.received.startsWith(connect)) << proxy.received.toStdString();
        EXPECT_EQ(proxy.received.isEmpty(), *connect == 0) << proxy.received.toStdString();
        EXPECT_FALSE(proxy.received.contains("token-1"));
    }
}

TEST_F(PlanUsageTest, triesTheNextAddressIfTheFirstDoesNotAnswer) {
    const SilentAddress silent(server.port());
    CurlClient both = client({u"--resolve"_s, u"localhost:%1:%2,127.0.0.1"_s.arg(server.port())
                                                  .arg(QLatin1StringView(SilentAddress::address))});
    EXPECT_TRUE(succeeds(both, Seconds(6)));
}

TEST_F(PlanUsageTest, queriesEveryNinetySecondsAndReadsTheFileWhileThatFails) {
    start();
    const SignalCount changes(usage.get(), &PlanUsage::changed);
    pass(Seconds(90));
    EXPECT_EQ(server.requests().size(), 1);
    EXPECT_EQ(changes.count(), 0) << "the file does not count while asking succeeds";
    EXPECT_TRUE(windows() == answered);

    server.answer = UsageServer::http("500 Internal Server Error", "");
    pass(tick);
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_TRUE(windows() == answered) << "a failure leaves what was known";
    pass(tick);
    EXPECT_TRUE(windows() == answered) << "the file is older";
    write(u".ravelo/usage.json"_s, R"({"rate_limits":{"five_hour":{"used_percentage":33}}})");
    pass(tick);
    EXPECT_TRUE(windows() == (PlanWindows{UsageWindow{33, {}}, {}}));
    write(u".ravelo/usage.json"_s, "{");
    pass(tick);
    EXPECT_TRUE(windows() == (PlanWindows{UsageWindow{33, {}}, {}})) << "invalid";

    server.answer = ok(goodBody);
    pass(Seconds(80));
    EXPECT_EQ(server.requests().size(), 3);
    EXPECT_TRUE(windows() == answered);
}

TEST_F(PlanUsageTest, keepsTheRecentFiguresForItsPace) {
    const auto answer = [&](double percent) {
        server.answer = UsageServer::http("200 OK", R"({"five_hour":{"utilization":)" +
                                                        QByteArray::number(percent) + "}}");
    };
    const QString file = path(u".cache/ravelo/pace.json"_s);
    answer(10);
    start();
    EXPECT_EQ(usage->pace().session, std::nullopt) << "one figure";
    EXPECT_EQ(usage->figuresAt(), scheduler.now());
    scheduler.advance(Seconds(0));
    EXPECT_TRUE(QFile::exists(file));
    pass(Seconds(1200));
    ASSERT_TRUE(usage->pace().session);
    EXPECT_EQ(usage->pace().session->perHour, 0);
    ASSERT_TRUE(QFile::remove(file));
    pass(Seconds(1200));
    EXPECT_FALSE(QFile::exists(file)) << "nothing was used, so nothing is written";
    answer(30);
    pass(Seconds(100));
    ASSERT_TRUE(usage->pace().session);
    const double perHour = usage->pace().session->perHour;
    EXPECT_GT(perHour, 20);
    EXPECT_TRUE(QFile::exists(file));

    usage.reset();
    answer(30.5);
    scheduler.advance(Seconds(60));
    start();
    ASSERT_TRUE(usage->pace().session) << "the figures of before are lost";
    EXPECT_NEAR(usage->pace().session->perHour, perHour, 3);
}

TEST_F(PlanUsageTest, queriesLessOftenIfRateLimited) {
    const auto tooMany = [](const QByteArray& header) {
        return UsageServer::http("429 Too Many Requests", "", header);
    };
    /// The time until the next request, in ticks.
    const auto wait = [&] {
        const auto before = server.requests().size();
        Seconds passed(0);
        for (; server.requests().size() == before && passed < Seconds(90000); passed += tick) {
            pass(tick);
        }
        return passed.count();
    };
    server.answer = tooMany("");
    start();
    for (const int spacing : {180, 360, 720, 1440, 1800, 1800}) {
        EXPECT_EQ(wait(), spacing + 5);
    }
    server.answer = tooMany("Retry-After: 5400\r\n");
    EXPECT_EQ(wait(), 1805);
    EXPECT_EQ(wait(), 5400) << "as the provider says";
    server.answer = tooMany("Retry-After: 10\r\n");
    EXPECT_EQ(wait(), 5400);
    server.answer = ok(goodBody);
    EXPECT_EQ(wait(), 1805) << "not sooner than without it";
    server.answer = UsageServer::http("500 Internal Server Error", "");
    EXPECT_EQ(wait(), 95) << "an answer was given again";
    EXPECT_EQ(wait(), 95);
}

TEST_F(PlanUsageTest, renewsARefusedTokenAtMostEveryTwentyMinutes) {
    server.answer = UsageServer::http("401 Unauthorized", "");
    start();
    const QByteArray run =
        "<-p><.><--model><claude-haiku-4-5-20251001><--max-turns><1>/dev/null/dev/null/dev/null";
    EXPECT_EQ(runs(), QByteArrayList{run});
    pass(Seconds(1200));
    EXPECT_EQ(server.requests().size(), 1 + 12) << "every 95 seconds";
    EXPECT_EQ(runs().size(), 1);
    pass(Seconds(95));
    EXPECT_EQ(runs(), (QByteArrayList{run, run}));
}

TEST_F(PlanUsageTest, renewsInAnEmptyEnvironment) {
    const QString folder = path(u"cache/renewal"_s);
    write(u"cache/renewal/.claude/settings.json"_s, "left over");
    server.answer = UsageServer::http("401 Unauthorized", "");
    start();
    EXPECT_EQ(readFile(path(u".local/bin/place"_s)), folder.toUtf8() + "\n700\n")
        << "an empty folder for this user alone";
    EXPECT_EQ(readFile(path(u".local/bin/environment"_s)),
              "CLAUDE_CONFIG_DIR=/c\nHOME=/h\nLC_TIME=C\nPATH=/usr/bin:/bin\n"
              "https_proxy=http://proxy\n");
    EXPECT_FALSE(QFile::exists(folder)) << "removed with what was left in it";
}

TEST_F(PlanUsageTest, renewsATokenThatIsAboutToExpireAndStillUsesIt) {
    const auto expiringIn = [&](double seconds) {
        const double now = scheduler.now().sinceReference + referenceInstant;
        return ",\"expiresAt\":" + QByteArray::number((now + seconds) * 1000, 'f', 0);
    };
    setToken("fresh", expiringIn(601));
    start();
    EXPECT_EQ(runs().size(), 0);
    setToken("old", expiringIn(95 + 300));
    write(u".local/bin/next"_s, credentials("new"));
    pass(Seconds(95));
    EXPECT_EQ(runs().size(), 1);
    EXPECT_FALSE(QFile::exists(path(u".local/bin/next"_s))) << "it had ended before the request";
    pass(Seconds(95));
    QByteArrayList tokens;
    for (const QByteArray& request : server.requests()) {
        tokens.append(request.mid(request.indexOf("Bearer ") + 7, 5).trimmed());
    }
    EXPECT_EQ(tokens, (QByteArrayList{"fresh", "old", "new"}));
}

TEST_F(PlanUsageTest, worksWithoutAToolToRenewTheToken) {
    ASSERT_TRUE(QFile::remove(path(u".local/bin/claude"_s)));
    server.answer = UsageServer::http("401 Unauthorized", "");
    start();
    server.answer = ok(goodBody);
    pass(Seconds(95));
    EXPECT_TRUE(windows() == answered);
}

TEST_F(PlanUsageTest, asksTheSecretServiceIfNoFileHasCredentials) {
    setToken("");
    start();
    EXPECT_EQ(secrets.asked, QStringList{u"Claude Code-credentials"_s});
    EXPECT_EQ(server.requests().size(), 0);
    EXPECT_FALSE(usage->liveOK());

    secrets.secret = credentials("secret-token");
    pass(Seconds(95));
    EXPECT_TRUE(server.requests().value(0).contains("Bearer secret-token\r\n"));
    EXPECT_TRUE(windows() == answered);
    EXPECT_EQ(runs().size(), 0);
}

TEST_F(PlanUsageTest, looksElsewhereForCredentialsLast) {
    setToken("");
    write(u"other/.credentials.json"_s, credentials("other-token"));
    const auto run = [&] {
        usage = asking(https, u"localhost"_s, Seconds(15),
                       {"/no/such", QFile::encodeName(path(u"other"_s))});
        settle();
        return server.requests().last();
    };
    EXPECT_TRUE(run().contains("Bearer other-token\r\n"));
    secrets.secret = credentials("secret-token");
    EXPECT_TRUE(run().contains("Bearer secret-token\r\n"));
}

TEST_F(PlanUsageTest, knowsASecondAccountByItsFolderOnly) {
    const auto second = [this] {
        auto plan = std::make_unique<PlanUsage>(
            UsageQuery::Services{scheduler, files, secrets, https, children},
            QFile::encodeName(home.path()), std::make_unique<FakeFolderChanges>(),
            UsageQuery::Endpoint{server.url(u"localhost"_s), Seconds(15)}, QByteArrayList(),
            QFile::encodeName(path(u"work"_s)));
        settle(*plan);
        return plan;
    };
    secrets.secret = credentials("token-2");
    const auto without = second();
    EXPECT_FALSE(without->liveOK());
    EXPECT_EQ(without->session(), std::nullopt) << "a file of the usual account was read";
    EXPECT_EQ(server.requests().size(), 0) << "with the usual account's token";
    EXPECT_EQ(secrets.asked, QStringList());
    write(u"work/.credentials.json"_s, credentials("token-3"));
    const auto with = second();
    EXPECT_TRUE(with->liveOK());
    ASSERT_EQ(server.requests().size(), 1);
    EXPECT_TRUE(server.requests().first().contains("token-3"));
}

TEST_F(PlanUsageTest, hidesTheTokenAndCanBeDestroyedDuringAQuery) {
    server.answer.clear();
    usage = asking(https);
    scheduler.advance(Seconds(0));
    ASSERT_TRUE(eventually([&] { return !server.requests().isEmpty(); }));
    const auto* const curl = https.findChild<QProcess*>();
    ASSERT_TRUE(curl);
    const QString process = u"/proc/%1/"_s.arg(curl->processId());
    const QByteArray arguments = readFile(process + u"cmdline"_s).value_or(QByteArray());
    EXPECT_TRUE(arguments.contains("/api/oauth/usage")) << "that is not the request";
    EXPECT_FALSE(arguments.contains("token-1"));
    EXPECT_EQ(readFile(process + u"environ"_s), QByteArray("LC_ALL=C.UTF-8\0", 15));

    usage.reset();
    EXPECT_EQ(scheduler.pending(), 0);
}

} // namespace

} // namespace ravelo
