// Whoever is woken by the kernel shows what somebody who looks every five seconds does.

#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeFolderChanges.h"
#include "fakes/FakeUsageSources.h"
#include "fakes/ManualScheduler.h"
#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"
#include "platform/system/InotifyChanges.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <random>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds tick(5);

/// Both monitors, with what they need.
struct Monitor {
    template <typename Changes>
    Monitor(ManualScheduler& scheduler, const QByteArray& home, Changes /*kind*/)
        : jobs(scheduler),
          context({scheduler, jobs}, home, std::make_unique<typename Changes::type>()),
          usage({scheduler, jobs, secrets, https, children}, home,
                std::make_unique<typename Changes::type>()) {}

    FakeDetachedJobs jobs;
    FakeSecretStore secrets;
    SilentHttps https;
    EndlessChild children;
    LiveContext context;
    PlanUsage usage;
};

class WatchingTest : public testing::Test {
protected:
    void pass(Seconds time) {
        QCoreApplication::processEvents(); // The kernel's reports.
        scheduler_.advance(time);
    }

    [[nodiscard]] QString path(const QString& name) const { return home_.filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const { makeFile(path(name), bytes); }

    void doSomething() {
        const QString project = u".claude/projects/p%1"_s.arg(pick(3));
        const QString session = project + u"/s%1.jsonl"_s.arg(pick(3));
        const QByteArray number = QByteArray::number(1 + pick(900000));
        switch (pick(9)) {
        case 0:
        case 1:
        case 2:
            write(session, R"({"message":{"usage":{"input_tokens":)" + number + "}}}\n");
            break;
        case 3:
            QFile::remove(path(session));
            break;
        case 4:
            QDir(path(project)).removeRecursively();
            break;
        case 5:
            QDir().rename(path(u".claude"_s), path(u"away"_s + QString::fromLatin1(number)));
            break;
        case 6:
            write(u".claude/settings.json"_s,
                  R"({"env":{"CLAUDE_CODE_AUTO_COMPACT_WINDOW":)" + number + "}}");
            break;
        case 7:
            write(u".ravelo/usage.json"_s, R"({"rate_limits":{"five_hour":{"used_percentage":)" +
                                               QByteArray::number(pick(100)) + "}}}");
            break;
        default:
            write(u".local/bin/claude"_s, {});
            break;
        }
    }

    [[nodiscard]] int pick(int count) {
        return std::uniform_int_distribution<int>(0, count - 1)(random_);
    }

    QTemporaryDir home_;
    ManualScheduler scheduler_;
    std::mt19937 random_{20261126};
    Monitor woken_{scheduler_, QFile::encodeName(home_.path()),
                   std::type_identity<InotifyChanges>()};
    Monitor polling_{scheduler_, QFile::encodeName(home_.path()),
                     std::type_identity<FakeFolderChanges>()};
};

TEST_F(WatchingTest, showsWhatPollingShows) {
    for (int step = 0; step < 400; ++step) {
        for (int changes = pick(3); changes > 0; --changes) {
            doSomething();
        }
        pass(tick);
        ASSERT_EQ(woken_.context.used(), polling_.context.used()) << "step " << step;
        ASSERT_EQ(woken_.context.limit(), polling_.context.limit()) << "step " << step;
        ASSERT_EQ(woken_.context.installed(), polling_.context.installed()) << "step " << step;
        ASSERT_EQ(woken_.context.lastActivity(), polling_.context.lastActivity())
            << "step " << step;
        ASSERT_EQ(woken_.context.peak(), polling_.context.peak()) << "step " << step;
        ASSERT_TRUE(woken_.usage.session() == polling_.usage.session()) << "step " << step;
    }
    EXPECT_LT(woken_.jobs.given, polling_.jobs.given * 3 / 4) << "looks";
}

TEST_F(WatchingTest, doesNextToNothingAtRest) {
    pass(tick);
    int updates = 0;
    woken_.context.onChange = [&] {
        ++updates;
    };
    const int before = woken_.jobs.given;
    for (int i = 0; i < 720; ++i) {
        pass(tick);
    }
    EXPECT_LE(woken_.jobs.given - before, 12 * 5) << "every five minutes, five files";
    EXPECT_LE(updates, 60 + 12) << "once for each minute that is shown, and after each look";
}

TEST_F(WatchingTest, asksSoonAfterSomebodyLoggedIn) {
    for (int i = 0; i < 4; ++i) {
        pass(tick);
    }
    ASSERT_EQ(woken_.https.asked, 0);
    write(u".claude/.credentials.json"_s, R"({"claudeAiOauth":{"accessToken":"token"}})");
    pass(tick);
    EXPECT_EQ(woken_.https.asked, 1);
}

} // namespace

} // namespace ravelo
