#include "platform/system/DataLock.h"

#include "base/Files.h"
#include "platform/system/MachineId.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Claim = DataLock::Claim;

class DataLocks : public testing::Test {
protected:
    /// What a lock of the process and the machine has in it.
    static QByteArray lockOf(qint64 process, const QByteArray& machine) {
        return QByteArray::number(process) + "\nravelo\nfar.example\n" + machine + "\nboot\n";
    }

    void leave(const QByteArray& contents) {
        ASSERT_TRUE(QDir().mkpath(folder_.filePath(u"Ravelo"_s)));
        ASSERT_TRUE(writeFileAtomically(path_, contents));
        ASSERT_EQ(chmod(qPrintable(path_), 0644), 0);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"Ravelo/lock"_s);
    QString data_ = folder_.filePath(u"Ravelo/store.json"_s);
};

TEST_F(DataLocks, AreHeldByOneProcess) {
    {
        DataLock first(path_, data_);
        ASSERT_TRUE(first.claim(Claim::ifFree));
        EXPECT_TRUE(first.check());
        EXPECT_TRUE(DataLock::mayBeHeld(path_));
        DataLock second(path_, data_);
        const Result<void> claimed = second.claim(Claim::ifFree);
        ASSERT_FALSE(claimed);
        EXPECT_EQ(claimed.error().message,
                  u"Ravelo runs in another session and uses "_s + folder_.filePath(u"Ravelo"_s));
    }
    EXPECT_FALSE(QFile::exists(path_));
    EXPECT_FALSE(DataLock::mayBeHeld(path_));
}

TEST_F(DataLocks, OfThisMachineAreFreeAfterTheirProcess) {
    for (const QByteArray& left : {lockOf(getpid(), machineId()), QByteArray()}) {
        leave(left);
        DataLock lock(path_, data_);
        EXPECT_TRUE(lock.claim(Claim::ifFree)) << left.constData();
        struct stat info = {};
        ASSERT_EQ(stat(qPrintable(path_), &info), 0);
        EXPECT_EQ(info.st_mode & 07777U, 0600U);
    }
}

TEST_F(DataLocks, OfAnotherMachineAreTakenOverOnDemandOnly) {
    if (machineId().isEmpty()) {
        GTEST_SKIP() << "this machine has no unique ID";
    }
    leave(lockOf(7, "another machine"));
    DataLock lock(path_, data_);
    const Result<void> claimed = lock.claim(Claim::ifFree);
    ASSERT_FALSE(claimed);
    EXPECT_TRUE(claimed.error().message.contains(u"far.example (process 7)"_s))
        << qPrintable(claimed.error().message);
    EXPECT_TRUE(claimed.error().message.endsWith(u"ravelo --take-over"_s));
    ASSERT_TRUE(lock.claim(Claim::takeOver));
    EXPECT_TRUE(lock.check());
}

TEST_F(DataLocks, AreLostForGoodOnceTakenOver) {
    DataLock old(path_, data_);
    ASSERT_TRUE(old.claim(Claim::ifFree));
    {
        DataLock taker(path_, data_);
        ASSERT_TRUE(taker.claim(Claim::takeOver));
        EXPECT_TRUE(taker.check());
        const Result<void> checked = old.check();
        ASSERT_FALSE(checked);
        EXPECT_EQ(checked.error().message, u"another Ravelo has taken over"_s);
    }
    EXPECT_FALSE(old.check()) << "the other one has ended, but what it saved stays";
}

TEST_F(DataLocks, DoNotDeleteAnothersLock) {
    auto old = std::make_unique<DataLock>(path_, data_);
    ASSERT_TRUE(old->claim(Claim::ifFree));
    DataLock taker(path_, data_);
    ASSERT_TRUE(taker.claim(Claim::takeOver));
    old.reset();
    EXPECT_TRUE(taker.check());
}

TEST_F(DataLocks, AreLostIfRemovedUnlessTheDataWereToo) {
    DataLock lock(path_, data_);
    ASSERT_TRUE(lock.claim(Claim::ifFree));
    ASSERT_TRUE(QDir(folder_.filePath(u"Ravelo"_s)).removeRecursively());
    EXPECT_TRUE(lock.check()) << "nothing of anybody else's can be lost";
    EXPECT_TRUE(QFile::exists(path_));
    ASSERT_TRUE(writeFileAtomically(data_, "{}"));
    ASSERT_TRUE(QFile::remove(path_));
    EXPECT_FALSE(lock.check()) << "another process may have taken over and ended";
}

TEST_F(DataLocks, AreCreatedLaterIfTheyCannotBeAtFirst) {
    QFile inTheWay(folder_.filePath(u"Ravelo"_s));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    DataLock lock(path_, data_);
    EXPECT_TRUE(lock.claim(Claim::ifFree)) << "it works without a disk";
    ASSERT_TRUE(inTheWay.remove());
    EXPECT_TRUE(lock.check());
    EXPECT_TRUE(QFile::exists(path_));
}

/// What an earlier version makes of the lock's machine and host.
bool looksElsewhereToEarlierVersions(const QString& path) {
    const QList<QByteArray> lines = readFile(path).value_or(QByteArray()).split('\n');
    return lines.value(0).toLongLong() > 0 && lines.value(3) != machineId() &&
           lines.value(2) != QSysInfo::machineHostName().toUtf8();
}

TEST_F(DataLocks, OfEncryptedDataKeepEarlierVersionsAway) {
    const QString keyFile = folder_.filePath(u"Ravelo/key"_s);
    {
        DataLock lock(path_, data_, keyFile);
        ASSERT_TRUE(lock.claim(Claim::ifFree));
        EXPECT_FALSE(looksElsewhereToEarlierVersions(path_));
        ASSERT_TRUE(writeFileAtomically(keyFile, "key"));
        lock.followKeyFile();
        EXPECT_TRUE(lock.check());
        EXPECT_TRUE(looksElsewhereToEarlierVersions(path_));
    }
    EXPECT_TRUE(looksElsewhereToEarlierVersions(path_)) << "also when none runs";
    {
        DataLock lock(path_, data_, keyFile);
        EXPECT_TRUE(lock.claim(Claim::ifFree)) << "but not this version";
        EXPECT_TRUE(looksElsewhereToEarlierVersions(path_));
        DataLock second(path_, data_, keyFile);
        EXPECT_FALSE(second.claim(Claim::ifFree));
        ASSERT_TRUE(QFile::remove(keyFile));
        lock.followKeyFile();
        EXPECT_FALSE(looksElsewhereToEarlierVersions(path_));
        EXPECT_TRUE(lock.check());
    }
    EXPECT_FALSE(QFile::exists(path_));
}

} // namespace

} // namespace ravelo
