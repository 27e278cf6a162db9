// On a real folder, with changes reported by the kernel or not at all.

#include "monitor/LiveContext.h"

#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeFolderChanges.h"
#include "fakes/ManualScheduler.h"
#include "platform/system/InotifyChanges.h"
#include "support/TestFiles.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <fcntl.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds tick(5);

class ContextTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const {
        return home_.filePath(u".claude/projects/"_s + name);
    }

    static void setDate(const QString& file, qint64 seconds) {
        const std::array<timespec, 2> times = {timespec{seconds, 0}, timespec{seconds, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, qPrintable(file), times.data(), 0), 0);
    }

    /// A transcript whose last turn used `tokens`; `date` is in seconds since 1970.
    void write(const QString& name, qint64 tokens, qint64 date, const QByteArray& before = {}) {
        makeFile(path(name), before + R"({"message":{"model":"claude-opus-4-6","usage":)" +
                                 R"({"input_tokens":)" + QByteArray::number(tokens) + "}}}\n");
        setDate(path(name), date);
    }

    void setLimit(const QByteArray& value) {
        makeFile(home_.filePath(u".claude/settings.json"_s),
                 R"({"env":{"CLAUDE_CODE_AUTO_COMPACT_WINDOW":)" + value + "}}");
    }

    void start(std::unique_ptr<FolderChanges> changes, const QByteArrayList& otherFolders = {}) {
        context_ = std::make_unique<LiveContext>(LiveContext::Services{scheduler_, jobs_},
                                                 QFile::encodeName(home_.path()),
                                                 std::move(changes), otherFolders);
        scheduler_.advance(Seconds(0)); // The files are read a little later.
    }

    void pass(Seconds time) {
        QCoreApplication::processEvents(); // The kernel's reports.
        scheduler_.advance(time);
    }

    [[nodiscard]] qint64 usedAfterATick() {
        pass(tick);
        return context_->used();
    }

    QTemporaryDir home_;
    ManualScheduler scheduler_;
    FakeDetachedJobs jobs_{scheduler_};
    std::unique_ptr<LiveContext> context_;
};

using MakeChanges = std::unique_ptr<FolderChanges> (*)();

/// The result does not depend on what reports changes.
class LiveContextTest : public ContextTest, public testing::WithParamInterface<MakeChanges> {
protected:
    void start() { ContextTest::start(GetParam()()); }
};

TEST_P(LiveContextTest, followsTheNewestTranscript) {
    start();
    EXPECT_EQ(context_->model(), QString());
    EXPECT_EQ(context_->used(), 0);
    EXPECT_EQ(context_->limit(), 1000000);
    EXPECT_EQ(context_->lastActivity(), std::nullopt);

    write(u"a/old.jsonl"_s, 100, 1000);
    EXPECT_EQ(usedAfterATick(), 100) << "the folder was just made";
    EXPECT_EQ(context_->model(), u"Opus 4.6"_s);
    EXPECT_EQ(context_->lastActivity(), Date{1000 - referenceInstant});
    write(u"b/new.jsonl"_s, 200, 1001);
    EXPECT_EQ(usedAfterATick(), 200) << "in another project";
    write(u"a/old.jsonl"_s, 300, 1002);
    EXPECT_EQ(usedAfterATick(), 300) << "the old session goes on";
    setDate(path(u"b/new.jsonl"_s), 1003);
    EXPECT_EQ(usedAfterATick(), 200) << "only its date is new";
    ASSERT_TRUE(QDir().rename(path(u"a"_s), path(u"c"_s)));
    write(u"c/old.jsonl"_s, 400, 1004);
    EXPECT_EQ(usedAfterATick(), 400) << "its project has another name";
    ASSERT_TRUE(QDir(path(u"c"_s)).removeRecursively());
    EXPECT_EQ(usedAfterATick(), 200) << "the newest is gone";
    write(u"c/again.jsonl"_s, 500, 1005);
    EXPECT_EQ(usedAfterATick(), 500) << "a project of the same name";
    ASSERT_TRUE(QDir().rename(home_.filePath(u".claude"_s), home_.filePath(u"away"_s)));
    EXPECT_EQ(usedAfterATick(), 500) << "the last reading stays";
    write(u"c/again.jsonl"_s, 600, 1);
    EXPECT_EQ(usedAfterATick(), 600) << "created again in the old place";
    EXPECT_EQ(context_->lastActivity(), Date{1 - referenceInstant});
    ASSERT_TRUE(QDir().rename(home_.filePath(u".claude"_s), home_.filePath(u"elsewhere"_s)));
    write(u"c/again.jsonl"_s, 700, 2);
    EXPECT_EQ(usedAfterATick(), 700) << "and once more within a tick";
}

TEST_P(LiveContextTest, readsTranscriptsOnly) {
    write(u"b/x.jsonl"_s, 1, 1000);
    write(u"top.jsonl"_s, 9, 2000);
    write(u"b/deep/er.jsonl"_s, 9, 2000);
    write(u"b/x.json"_s, 9, 2000);
    write(u"b/x.JSONL"_s, 9, 2000);
    write(u"b/.jsonl"_s, 9, 2000);
    ASSERT_TRUE(QDir().mkpath(path(u"b/folder.jsonl"_s)));
    ASSERT_EQ(mkfifo(qPrintable(path(u"b/pipe.jsonl"_s)), 0600), 0);
    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"b/broken.jsonl"_s)));
    start();
    EXPECT_EQ(context_->used(), 1);
    write(u"b/y.jsonl"_s, 2, 1000);
    EXPECT_EQ(usedAfterATick(), 1) << "of one date the first by name";
    write(u"a/z.jsonl"_s, 3, 1000);
    EXPECT_EQ(usedAfterATick(), 3);
    write(u".hidden/.x.jsonl"_s, 4, 1001);
    EXPECT_EQ(usedAfterATick(), 4);

    write(u"../elsewhere/x.jsonl"_s, 5, 1002);
    ASSERT_TRUE(QFile::link(path(u"../elsewhere"_s), path(u"link"_s)));
    EXPECT_EQ(usedAfterATick(), 5) << "a project that is a link";
    write(u"../elsewhere/x.jsonl"_s, 6, 1003);
    EXPECT_EQ(usedAfterATick(), 6);
    write(u"../another/x"_s, 7, 1004);
    ASSERT_TRUE(QFile::link(path(u"../another/x"_s), path(u"a/link.jsonl"_s)));
    EXPECT_EQ(usedAfterATick(), 7) << "a transcript that is a link";
    write(u"../another/x"_s, 8, 1005);
    EXPECT_EQ(usedAfterATick(), 8);
}

INSTANTIATE_TEST_SUITE_P(Kernel, LiveContextTest, testing::Values([] {
                             return std::unique_ptr<FolderChanges>(
                                 std::make_unique<InotifyChanges>());
                         }));
INSTANTIATE_TEST_SUITE_P(NoReports, LiveContextTest, testing::Values([] {
                             return std::unique_ptr<FolderChanges>(
                                 std::make_unique<FakeFolderChanges>());
                         }));

TEST_F(ContextTest, readsOnlyChangedTranscripts) {
    write(u"a/x.jsonl"_s, 11, 1000);
    const auto script = std::make_shared<FakeFolderChanges::Script>();
    start(std::make_unique<FakeFolderChanges>(script));
    EXPECT_EQ(context_->used(), 11);
    const QByteArray folder = QFile::encodeName(path(u"a"_s));

    write(u"a/x.jsonl"_s, 22, 1000);
    script->next.folders = {folder};
    EXPECT_EQ(usedAfterATick(), 11) << "the same date and size";
    write(u"a/x.jsonl"_s, 33, 1001);
    EXPECT_EQ(usedAfterATick(), 11) << "the change was not reported";
    script->next.folders = {folder};
    EXPECT_EQ(usedAfterATick(), 33);
    write(u"a/x.jsonl"_s, 44, 1002);
    script->next.lost = true;
    EXPECT_EQ(usedAfterATick(), 44);
}

TEST_F(ContextTest, readsTheEndOfALongTranscript) {
    const qsizetype limit = transcriptWindow;
    start(std::make_unique<InotifyChanges>());
    write(u"a/x.jsonl"_s, 11, 1000, QByteArray(5 * limit, '\n'));
    EXPECT_EQ(usedAfterATick(), 11);

    const auto turn = [](int tokens) {
        return R"({"message":{"usage":{"input_tokens":)" + QByteArray::number(tokens) + "}}}";
    };
    const qsizetype size = turn(7).size();
    makeFile(path(u"a/x.jsonl"_s), turn(7) + QByteArray(limit - size, '\n'));
    EXPECT_EQ(usedAfterATick(), 7) << "the whole file fits";
    makeFile(path(u"a/x.jsonl"_s), turn(8) + QByteArray(limit + 1 - size, '\n'));
    EXPECT_EQ(usedAfterATick(), 8) << "the turn begins one byte too early";
    const QByteArray foreign = QByteArray("ä").repeated(limit / 2) + '\n';
    makeFile(path(u"a/x.jsonl"_s), foreign + turn(9) + QByteArray(limit - size - 2, '\n'));
    EXPECT_EQ(usedAfterATick(), 9) << "the window begins within a character";
    makeFile(path(u"a/x.jsonl"_s), turn(6) + '\n' + QByteArray(5 * limit, 'x') + '\n');
    EXPECT_EQ(usedAfterATick(), 6) << "a line of five megabytes follows";
    const QByteArray wide = foreign + turn(5) + '\n';
    const qsizetype rest = maxTranscriptWindow + 1 - wide.size();
    makeFile(path(u"a/x.jsonl"_s), "\xff" + wide + QByteArray(rest, '\n'));
    EXPECT_EQ(usedAfterATick(), 5) << "the wide window begins within a character";
    makeFile(path(u"a/x.jsonl"_s), turn(4) + QByteArray(maxTranscriptWindow, '\n'));
    EXPECT_EQ(usedAfterATick(), 5) << "further back nothing is read";
    EXPECT_EQ(context_->limit(), 1000000);
}

TEST_F(ContextTest, usesTheNewestTranscriptWithATurn) {
    write(u"a/one.jsonl"_s, 11, 1000);
    write(u"a/two.jsonl"_s, 22, 1001);
    write(u"b/three.jsonl"_s, 33, 999);
    makeFile(path(u"b/opened.jsonl"_s), "{\"type\":\"summary\"}\n");
    setDate(path(u"b/opened.jsonl"_s), 1002);
    start(std::make_unique<InotifyChanges>());
    EXPECT_EQ(context_->used(), 22);
    EXPECT_EQ(context_->lastActivity(), Date{1001 - referenceInstant});
    write(u"a/two.jsonl"_s, 0, 1003);
    EXPECT_EQ(usedAfterATick(), 11) << "neither of the two newest has one";
    write(u"b/opened.jsonl"_s, 44, 1004);
    EXPECT_EQ(usedAfterATick(), 44);
    write(u"-home-u--cache-ravelo-renewal/x.jsonl"_s, 55, 1005);
    EXPECT_EQ(usedAfterATick(), 44) << "our own run of Claude Code";
}

TEST_F(ContextTest, knowsWhetherClaudeCodeIsInstalled) {
    const QString other = home_.filePath(u"elsewhere"_s);
    start(std::make_unique<InotifyChanges>(), {QFile::encodeName(other)});
    EXPECT_FALSE(context_->installed());
    for (const QString& sign : {other, home_.filePath(u".local/bin/claude"_s)}) {
        makeFile(sign);
        pass(tick);
        EXPECT_TRUE(context_->installed()) << qPrintable(sign);
        QFile::remove(sign);
        pass(tick);
        EXPECT_FALSE(context_->installed()) << qPrintable(sign);
    }
    setLimit("1000");
    pass(tick);
    EXPECT_TRUE(context_->installed()) << "its usual folder";
}

TEST_F(ContextTest, looksElsewhereOnlyIfTheUsualFolderHasNoTurn) {
    const auto elsewhere = [&](const char* name) {
        return QFile::encodeName(home_.filePath(QLatin1StringView(name)));
    };
    write(u"../../chosen/projects/a/x.jsonl"_s, 11, 1000);
    write(u"../../.config/claude/projects/a/x.jsonl"_s, 22, 2000);
    makeFile(home_.filePath(u"chosen/settings.json"_s),
             R"({"env":{"CLAUDE_CODE_AUTO_COMPACT_WINDOW":500}})");
    start(std::make_unique<InotifyChanges>(), {elsewhere("chosen"), elsewhere(".config/claude")});
    EXPECT_EQ(context_->used(), 11) << "the first that has one, not the newest";
    EXPECT_EQ(context_->limit(), 500) << "its own settings";
    ASSERT_TRUE(QDir(home_.filePath(u"chosen"_s)).removeRecursively());
    EXPECT_EQ(usedAfterATick(), 22);
    EXPECT_EQ(context_->limit(), 1000000);
    write(u"a/x.jsonl"_s, 33, 1);
    EXPECT_EQ(usedAfterATick(), 33);
    write(u"../../.config/claude/projects/a/x.jsonl"_s, 44, 3000);
    EXPECT_EQ(usedAfterATick(), 33);
    ASSERT_TRUE(QDir(home_.filePath(u".claude"_s)).removeRecursively());
    EXPECT_EQ(usedAfterATick(), 44) << "what changed meanwhile is seen";
}

TEST_F(ContextTest, skipsListingManyUnwatchedFolders) {
    for (int i = 0; i < 400; ++i) {
        makeFile(path(u"a/%1.jsonl"_s.arg(i)));
    }
    write(u"b/x.jsonl"_s, 11, 1LL << 32);
    start(std::make_unique<FakeFolderChanges>());
    EXPECT_EQ(context_->used(), 11);
    write(u"c/new.jsonl"_s, 22, (1LL << 32) + 100);
    for (int look = 0; look < 2; ++look) {
        write(u"b/x.jsonl"_s, 100 + look, (1LL << 32) + 1 + look);
        EXPECT_EQ(usedAfterATick(), 100 + look) << "the newest is looked at, nothing is listed";
    }
    EXPECT_EQ(usedAfterATick(), 22) << "every third look with four hundred entries";
    ASSERT_TRUE(QFile::remove(path(u"c/new.jsonl"_s)));
    EXPECT_EQ(usedAfterATick(), 22);
    EXPECT_EQ(usedAfterATick(), 101) << "the newest is gone, so the others are listed";
}

TEST_F(ContextTest, readsItsLimitFromTheSettingsFile) {
    qputenv("CLAUDE_CODE_AUTO_COMPACT_WINDOW", "5");
    start(std::make_unique<InotifyChanges>());
    const auto limit = [&](const QByteArray& value) {
        setLimit(value);
        pass(tick);
        return context_->limit();
    };
    EXPECT_EQ(context_->limit(), 1000000) << "the environment does not count";
    EXPECT_EQ(limit("\"400000\""), 400000);
    EXPECT_EQ(limit("-17"), -17);
    EXPECT_EQ(limit("\"abc\""), 1000000);
    EXPECT_EQ(limit("17" + QByteArray(1 << 20, ' ')), 1000000) << "no settings are that large";
    EXPECT_EQ(limit("18"), 18);
    ASSERT_TRUE(QFile::remove(home_.filePath(u".claude/settings.json"_s)));
    pass(tick);
    EXPECT_EQ(context_->limit(), 1000000);
    qunsetenv("CLAUDE_CODE_AUTO_COMPACT_WINDOW");
}

TEST_F(ContextTest, staysWithOneSessionUntilItIsQuiet) {
    const auto wrote = [&](const QString& name, qint64 tokens) {
        const double now = scheduler_.now().sinceReference + referenceInstant;
        write(name, tokens, static_cast<qint64>(now));
        pass(tick);
        return context_->used();
    };
    start(std::make_unique<InotifyChanges>());
    EXPECT_EQ(wrote(u"a/x.jsonl"_s, 1), 1);
    EXPECT_EQ(wrote(u"b/y.jsonl"_s, 2), 2) << "the newest, unless the user wants otherwise";
    EXPECT_EQ(context_->project(), u"b"_s);
    context_->setSession(ContextReader::Session::steady);
    EXPECT_EQ(wrote(u"a/x.jsonl"_s, 3), 2) << "the other one was active five seconds ago";
    EXPECT_EQ(wrote(u"b/y.jsonl"_s, 4), 4);
    pass(Seconds(50));
    EXPECT_EQ(wrote(u"a/x.jsonl"_s, 5), 4);
    pass(Seconds(10));
    EXPECT_EQ(context_->used(), 5) << "the first has been quiet for a minute";
    EXPECT_EQ(context_->project(), u"a"_s);
    EXPECT_EQ(wrote(u"b/y.jsonl"_s, 6), 5) << "this one counts now";
    ASSERT_TRUE(QFile::remove(path(u"a/x.jsonl"_s)));
    EXPECT_EQ(usedAfterATick(), 6) << "it is gone";
}

TEST_F(ContextTest, followsWhatIsHandedOver) {
    const QByteArray home = QFile::encodeName(home_.path());
    start(std::make_unique<InotifyChanges>());
    EXPECT_EQ(context_->handed(), std::nullopt);
    const HandedOver handed{u"Opus"_s, u"1"_s, u"x"_s, 200000, 1500, {}, Date{1000}};
    ASSERT_TRUE(storeHandedOver(home, handed));
    pass(tick);
    EXPECT_EQ(context_->handed(), handed) << "its folder was just made";
    EXPECT_EQ(context_->used(), 0) << "the transcripts decide";
    makeFile(QFile::decodeName(handedOverFile(home)), "{");
    pass(tick);
    EXPECT_EQ(context_->handed(), handed) << "a broken file changes nothing";
    ASSERT_TRUE(QFile::remove(QFile::decodeName(handedOverFile(home))));
    pass(tick);
    EXPECT_EQ(context_->handed(), std::nullopt);
}

TEST_F(ContextTest, reportsPeakHoursEvenIfTheDiskHangs) {
    write(u"a/x.jsonl"_s, 11, 1000);
    jobs_.hung = true;
    start(std::make_unique<InotifyChanges>());
    int changes = 0;
    bool peak = false;
    context_->onChange = [&] {
        ++changes;
        EXPECT_EQ(context_->peak(), PeakInfo::at(scheduler_.now()));
        peak |= context_->peak().isPeak;
    };
    scheduler_.advance(Seconds(3 * 86400));
    EXPECT_EQ(changes, 3 * 86400 / 5);
    EXPECT_TRUE(peak) << "three days in May have a weekday";
    EXPECT_EQ(jobs_.given, 1) << "one look at a time";
    context_.reset();
    EXPECT_EQ(scheduler_.pending(), 0);
}

} // namespace

} // namespace ravelo
