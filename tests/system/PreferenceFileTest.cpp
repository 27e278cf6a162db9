#include "platform/system/PreferenceFile.h"

#include "base/Files.h"
#include "contract/PreferencesContract.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"
#include "fakes/MemoryPreferences.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class InMemory final : public PreferencesUnderTest {
public:
    [[nodiscard]] Preferences& preferences() override { return preferences_; }

    void restart() override {}

private:
    MemoryPreferences preferences_;
};

/// With a worker that is far behind, as on a slow disk.
class InAFile final : public PreferencesUnderTest {
public:
    InAFile() { start(); }

    [[nodiscard]] Preferences& preferences() override { return *preferences_; }

    void restart() override {
        preferences_.reset();
        start();
    }

private:
    void start() {
        const QString path = folder_.filePath(u"ravelo/preferences.json"_s);
        preferences_ =
            std::make_unique<PreferenceFile>(path, PreferenceFile::Services{scheduler_, worker_});
    }

    QTemporaryDir folder_;
    ManualScheduler scheduler_;
    ManualWorker worker_{ManualWorker::Mode::whenTold};
    std::unique_ptr<PreferenceFile> preferences_;
};

template <typename T>
std::unique_ptr<PreferencesUnderTest> make() {
    return std::make_unique<T>();
}

INSTANTIATE_TEST_SUITE_P(Memory, PreferencesContract, testing::Values(make<InMemory>));
INSTANTIATE_TEST_SUITE_P(File, PreferencesContract, testing::Values(make<InAFile>));

class PreferenceFileTest : public testing::Test {
protected:
    [[nodiscard]] QByteArray contents() const { return readFile(path_).value_or("missing"); }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"ravelo/preferences.json"_s);
    ManualScheduler scheduler_;
    ManualWorker worker_{ManualWorker::Mode::whenTold};
    PreferenceFile::Services services_{scheduler_, worker_};
};

TEST_F(PreferenceFileTest, IsWrittenAtOnceAndPrivate) {
    PreferenceFile preferences(path_, services_);
    EXPECT_FALSE(preferences.wasUnreadable()) << "there was none";
    EXPECT_EQ(worker_.pending(), 0) << "reading writes nothing";
    preferences.set(u"a"_s, 1.5);
    EXPECT_EQ(worker_.pending(), 1);
    worker_.drain();
    EXPECT_EQ(contents().simplified(), R"({ "a": 1.5 })");
    EXPECT_EQ(modeOf(path_), 0600U);
    EXPECT_EQ(modeOf(folder_.filePath(u"ravelo"_s)), 0700U);
    preferences.set(u"a"_s, 1.5);
    EXPECT_EQ(worker_.pending(), 0) << "nothing changed";
}

TEST_F(PreferenceFileTest, ChangesDuringAWriteShareTheNext) {
    PreferenceFile preferences(path_, services_);
    for (int i = 0; i < 100; ++i) {
        preferences.set(u"a"_s, i);
    }
    EXPECT_EQ(worker_.pending(), 1) << "a slider does not write a hundred times";
    worker_.drain();
    EXPECT_EQ(contents().simplified(), R"({ "a": 99 })");
}

TEST_F(PreferenceFileTest, KeepsUnknownKeys) {
    makeFile(path_, R"({"later":{"x":[1]},"a":"text"})");
    PreferenceFile(path_, services_).set(u"a"_s, true);
    EXPECT_EQ(contents().simplified(), R"({ "a": true, "later": { "x": [ 1 ] } })");
}

TEST_F(PreferenceFileTest, SetsAnUnreadableFileAside) {
    for (const char* junk : {"", "junk", "[1]", R"({"a":1)"}) {
        makeFile(path_, junk);
        PreferenceFile preferences(path_, services_);
        EXPECT_TRUE(preferences.wasUnreadable());
        EXPECT_TRUE(preferences.value(u"a"_s).isUndefined());
        EXPECT_EQ(contents(), junk) << "untouched until something is set";
        QString putAside;
        preferences.onSaved = [&](const SaveOutcome& outcome) {
            putAside = outcome.putAside;
        };
        preferences.set(u"a"_s, 2);
        worker_.drain();
        EXPECT_EQ(contents().simplified(), R"({ "a": 2 })");
        EXPECT_EQ(putAside, path_ + u".unreadable"_s);
        QFile aside(path_ + u".unreadable"_s);
        EXPECT_EQ(readFile(aside.fileName()), junk);
        EXPECT_TRUE(aside.remove());
    }
}

TEST_F(PreferenceFileTest, WorksWithoutADisk) {
    QFile file(folder_.filePath(u"ravelo"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly)) << "a file where the folder should be";
    PreferenceFile preferences(path_, services_);
    QStringList reasons;
    preferences.onSaved = [&](const SaveOutcome& outcome) {
        reasons.append(outcome.reason);
    };
    preferences.set(u"a"_s, 1);
    worker_.drain();
    EXPECT_EQ(preferences.value(u"a"_s), 1);
    ASSERT_TRUE(file.remove());
    scheduler_.advance(Seconds(31));
    worker_.drain();
    EXPECT_EQ(contents().simplified(), R"({ "a": 1 })") << "tried again";
    EXPECT_EQ(reasons, QStringList({u"Not a directory"_s, QString()}));
    scheduler_.advance(Seconds(100));
    EXPECT_EQ(worker_.pending(), 0) << "nothing is left to try";
}

TEST_F(PreferenceFileTest, RetriesAtExit) {
    QFile file(folder_.filePath(u"ravelo"_s));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    {
        PreferenceFile preferences(path_, services_);
        preferences.set(u"a"_s, 1);
        worker_.drain();
        ASSERT_TRUE(file.remove());
    }
    EXPECT_EQ(contents().simplified(), R"({ "a": 1 })");
}

TEST_F(PreferenceFileTest, IsErasedWithWhatIsBesideIt) {
    const QString elsewhere = folder_.filePath(u"elsewhere.json"_s);
    makeFile(elsewhere, "{}");
    makeFile(path_ + u".unreadable"_s, "junk");
    ASSERT_TRUE(QFile::link(elsewhere, path_));
    EXPECT_TRUE(erasePreferences(path_));
    EXPECT_FALSE(QFile::exists(elsewhere)) << "where a link led";
    EXPECT_TRUE(QDir(folder_.filePath(u"ravelo"_s)).isEmpty());
}

TEST_F(PreferenceFileTest, WritesAgainIfNotEverythingWasErased) {
    PreferenceFile preferences(path_, services_);
    preferences.set(u"a"_s, 1);
    preferences.erase([](const auto& /*outcome*/) {});
    preferences.set(u"b"_s, 2);
    worker_.drain();
    EXPECT_EQ(contents(), "missing");
    preferences.resume();
    preferences.set(u"c"_s, 3);
    worker_.drain();
    EXPECT_EQ(contents().simplified(), R"({ "a": 1, "b": 2, "c": 3 })");
}

TEST_F(PreferenceFileTest, WritesNothingOnceTheDataIsNotOurs) {
    services_.mayWrite = [] {
        return failure(u"taken over"_s);
    };
    PreferenceFile preferences(path_, services_);
    QString reason;
    preferences.onSaved = [&](const SaveOutcome& outcome) {
        reason = outcome.reason;
    };
    preferences.set(u"a"_s, 1);
    worker_.drain();
    EXPECT_EQ(reason, u"taken over"_s);
    EXPECT_EQ(contents(), "missing");
    EXPECT_EQ(scheduler_.pending(), 0) << "that will not change";
}

} // namespace

} // namespace ravelo
