#include "base/Files.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <atomic>
#include <thread>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Files : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    [[nodiscard]] QStringList entries() const {
        return QDir(folder_.path())
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder_;
};

TEST_F(Files, ReadersFindTheOldOrTheNewContentsWhole) {
    const QString file = path(u"a"_s);
    ASSERT_TRUE(writeFileAtomically(file, QByteArray(200'000, 'a')));
    std::atomic<bool> stop = false;
    std::atomic<int> reads = 0;
    std::string fault;
    std::thread reader([&] {
        while (!stop) {
            const QByteArray bytes = readFile(file).value_or("missing");
            if (bytes.size() < 200'000 || bytes.count(bytes[0]) != bytes.size() ||
                modeOf(file) != 0600U) {
                fault = std::to_string(bytes.size()) + " bytes: " + bytes.first(7).toStdString();
            }
            ++reads;
        }
    });
    for (int i = 0; i < 60 || reads < 60; ++i) {
        EXPECT_TRUE(writeFileAtomically(file, QByteArray(200'000 + i * 1000, char('b' + i % 20))));
    }
    stop = true;
    reader.join();
    EXPECT_EQ(fault, "") << "a reader saw something that was never written";
    EXPECT_EQ(entries(), QStringList(u"a"_s)) << "no temporary file stays";
}

TEST_F(Files, WriteThatFailsLeavesTheOldFile) {
    const Result<void> done = writeFileAtomically(path(u"none/a"_s), "x");
    ASSERT_FALSE(done);
    EXPECT_EQ(done.error().message, u"No such file or directory"_s);
    ASSERT_TRUE(QDir(folder_.path()).mkpath(u"taken/by a folder"_s));
    EXPECT_FALSE(writeFileAtomically(path(u"taken"_s), "x"));
    EXPECT_EQ(entries(), QStringList(u"taken"_s));
}

TEST_F(Files, WritingMakesAFilePrivate) {
    const QString file = path(u"a"_s);
    ASSERT_TRUE(writeFileAtomically(file, "old"));
    ASSERT_EQ(chmod(qPrintable(file), 0666), 0);
    ASSERT_TRUE(writeFileAtomically(file, "new"));
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(readFile(file), "new");
}

TEST_F(Files, WritingFollowsALink) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"elsewhere"_s));
    ASSERT_TRUE(QFile::link(path(u"elsewhere/a"_s), path(u"a"_s)));
    for (const char* contents : {"to nothing yet", "to a file"}) {
        ASSERT_TRUE(writeFileAtomically(path(u"a"_s), contents));
        EXPECT_EQ(readFile(path(u"elsewhere/a"_s)), contents);
    }
    ASSERT_TRUE(setAsideUnreadable(path(u"a"_s)));
    ASSERT_TRUE(writeFileAtomically(path(u"a"_s), "new"));
    EXPECT_EQ(readFile(path(u"a.unreadable"_s)), "to a file");
}

TEST_F(Files, AreGoneOnlyIfTheSystemSaysSo) {
    ASSERT_TRUE(writeFileAtomically(path(u"a"_s), ""));
    ASSERT_TRUE(QFile::link(path(u"loop"_s), path(u"loop"_s)));
    const std::pair<QString, Presence> table[] = {
        {path(u"a"_s), Presence::there},   {folder_.path(), Presence::there},
        {path(u"none"_s), Presence::gone}, {path(u"a/b"_s), Presence::gone},
        {QString(), Presence::gone},       {path(u"loop"_s), Presence::unknown}};
    for (const auto& [name, presence] : table) {
        EXPECT_EQ(presenceOf(QFile::encodeName(name)), presence) << qPrintable(name);
    }
}

TEST_F(Files, FolderIsMadeOrMadePrivate) {
    makePrivateFolder(path(u"a/b"_s));
    EXPECT_EQ(modeOf(path(u"a/b"_s)), 0700U);
    ASSERT_EQ(chmod(qPrintable(path(u"a/b"_s)), 0755), 0);
    makePrivateFolder(path(u"a/b"_s));
    EXPECT_EQ(modeOf(path(u"a/b"_s)), 0700U);
}

TEST_F(Files, MissingFileCannotBeReadAndAnEmptyOneCan) {
    EXPECT_FALSE(readFile(path(u"a"_s)));
    EXPECT_FALSE(readFile(folder_.path()));
    ASSERT_TRUE(writeFileAtomically(path(u"a"_s), ""));
    EXPECT_EQ(readFile(path(u"a"_s)), "");
}

TEST_F(Files, EachUnreadableFileIsKept) {
    const QString file = path(u"a"_s);
    EXPECT_EQ(setAsideUnreadable(file).value_or(u"failed"_s), QString());
    EXPECT_EQ(entries(), QStringList()) << "there was nothing to keep";
    for (const char* contents : {"1", "2", "3"}) {
        ASSERT_TRUE(writeFileAtomically(file, contents));
        ASSERT_TRUE(setAsideUnreadable(file));
    }
    EXPECT_EQ(entries(),
              QStringList({u"a"_s, u"a.unreadable"_s, u"a.unreadable2"_s, u"a.unreadable3"_s}));
    EXPECT_EQ(readFile(path(u"a.unreadable"_s)), "1");
    EXPECT_EQ(readFile(path(u"a.unreadable3"_s)), "3");
    EXPECT_EQ(modeOf(path(u"a.unreadable2"_s)), 0600U);
}

TEST_F(Files, MovesAsideWhatCannotBeCopied) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(u"a/inside"_s));
    ASSERT_TRUE(QFile::link(u"nowhere"_s, path(u"a.unreadable"_s)));
    EXPECT_EQ(setAsideUnreadable(path(u"a"_s)).value_or(QString()), path(u"a.unreadable2"_s));
    EXPECT_EQ(entries(), QStringList({u"a.unreadable"_s, u"a.unreadable2"_s}));
    EXPECT_TRUE(QFile::exists(path(u"a.unreadable2/inside"_s)));
}

TEST_F(Files, OfOtherProgramsAreReadFromTheirEnd) {
    const QString file = path(u"a"_s);
    const auto end = [](const QString& name, qint64 max) {
        return readFileEnd(QFile::encodeName(name), max);
    };
    EXPECT_EQ(end(file, 5), std::nullopt) << "missing";
    ASSERT_TRUE(writeFileAtomically(file, "0123456789"));
    EXPECT_EQ(end(file, 5), "56789");
    EXPECT_EQ(end(file, 10), "0123456789");
    EXPECT_EQ(end(file, 11), "0123456789");
    EXPECT_EQ(end(folder_.path(), 5), std::nullopt) << "a folder";
    ASSERT_EQ(mkfifo(qPrintable(path(u"pipe"_s)), 0600), 0);
    EXPECT_EQ(end(path(u"pipe"_s), 5), std::nullopt) << "it may never have a writer";
}

} // namespace

} // namespace ravelo
