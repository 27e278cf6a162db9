// Real kills of a process that converts a folder and saves into it.

#include "base/Files.h"
#include "vault/Conversion.h"
#include "vault/Vault.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const QByteArray marker("MARKER-IN-A-FILE");

class Kills : public testing::Test {
protected:
    Kills() {
        EXPECT_TRUE(QDir().mkpath(path_ + u"/clips"_s));
        file_.wrap(*key_, wrapper_);
        for (int i = 0; i < images; ++i) {
            EXPECT_TRUE(writeFileAtomically(imagePath(i), contents(i)));
        }
        EXPECT_TRUE(writeFileAtomically(storePath(), marker + "0"));
        EXPECT_TRUE(writeFileAtomically(storePath() + u".unreadable"_s, marker));
    }

    [[nodiscard]] QString storePath() const { return path_ + u"/store.json"_s; }

    [[nodiscard]] QString imagePath(int number) const {
        return path_ + u"/clips/%1.png"_s.arg(number);
    }

    static QByteArray contents(int number) {
        return marker + QByteArray::number(number) + QByteArray(20'000, 'x');
    }

    /// As a start does; true if it is encrypted afterwards.
    bool startAndFinish() {
        Vault vault(path_);
        EXPECT_EQ(vault.trouble(), Vault::Trouble::none);
        if (const auto file = vault.keyFile()) {
            auto key = file->unwrap(wrapper_);
            EXPECT_TRUE(key);
            vault.open(*file, std::make_shared<const StoreKey>(std::move(*key)));
            EXPECT_TRUE(finishConversion(vault, {}));
        }
        expectAll(vault);
        return vault.state() == Vault::State::open;
    }

    void expectAll(const Vault& vault) {
        for (int i = 0; i < images; ++i) {
            EXPECT_EQ(vault.bytes(imagePath(i)), contents(i)) << "image " << i;
        }
        EXPECT_EQ(vault.bytes(storePath() + u".unreadable"_s), marker);
        const QByteArray saved = vault.bytes(storePath()).value_or("nothing");
        EXPECT_TRUE(saved.startsWith(marker)) << saved.constData();
        const int count = saved.mid(marker.size()).toInt();
        EXPECT_GE(count, saved_) << "a save that had ended is lost";
        saved_ = count;
    }

    /// In the child: saves and converts to and fro until it is killed. Reports each change of a
    /// file just before it.
    [[noreturn]] void work(int reports) {
        const OwnFile::Permission report = [reports]() -> Result<void> {
            return write(reports, "x", 1) == 1 ? Result<void>() : failure(u"no pipe"_s);
        };
        Vault vault(path_);
        if (const auto file = vault.keyFile()) {
            vault.open(*file, std::make_shared<const StoreKey>(*file->unwrap(wrapper_)));
        }
        for (int count = saved_ + 1;; ++count) {
            const bool done =
                vault.write(storePath(), marker + QByteArray::number(count), report) &&
                (vault.state() == Vault::State::plain ? beginEncryption(vault, file_, key_, report)
                                                      : endEncryption(vault, report));
            if (!done) {
                _exit(1);
            }
        }
    }

    int plainFiles() {
        int plain = 0;
        for (QDirIterator files(path_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             files.hasNext();) {
            plain += readFile(files.next())->contains(marker) ? 1 : 0;
        }
        return plain;
    }

    static constexpr int images = 8;

    QTemporaryDir directory_;
    QString path_ = directory_.filePath(u"Ravelo"_s);
    LockedBytes wrapper_ = LockedBytes::random(KeyFile::wrapperLength);
    std::shared_ptr<const StoreKey> key_ = std::make_shared<const StoreKey>(StoreKey::random());
    KeyFile file_ = KeyFile::of(*key_, KeyFile::Guard::keyring, {1, 8});
    int saved_ = 0;
};

TEST_F(Kills, WhileConvertingAndSavingLoseNothingAndLeaveNoPlainCopy) {
    const int kills = std::max(qEnvironmentVariableIntValue("RAVELO_KILLS"), 60);
    std::mt19937 random(1);
    int encrypted = 0;
    for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
        int reports[2];
        ASSERT_EQ(pipe(reports), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            work(reports[1]);
        }
        close(reports[1]);
        char report = 0;
        // One time to and fro is about three changes a file.
        for (int changes = std::uniform_int_distribution(1, 3 * images)(random); changes > 0;
             --changes) {
            ASSERT_EQ(read(reports[0], &report, 1), 1);
        }
        usleep(std::uniform_int_distribution<useconds_t>(0, 1'000)(random));
        ::kill(child, SIGKILL);
        close(reports[0]);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a step failed in the child";
        const bool isEncrypted = startAndFinish();
        encrypted += isEncrypted ? 1 : 0;
        if (isEncrypted) { // Otherwise a killed save may have left a plain part of one.
            EXPECT_EQ(plainFiles(), 0) << "after kill " << kill;
        }
    }
    EXPECT_GT(encrypted, kills / 10) << "no kill hit the encrypted state";
    EXPECT_LT(encrypted, kills - kills / 10) << "no kill hit the plain state";
    std::printf("%d kills, %d of them ended encrypted\n", kills, encrypted);
}

} // namespace

} // namespace ravelo
