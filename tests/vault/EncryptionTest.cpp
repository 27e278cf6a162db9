#include "vault/Encryption.h"

#include "base/Files.h"
#include "fakes/FakeDetachedJobs.h"
#include "fakes/FakeKeyring.h"
#include "fakes/ManualScheduler.h"
#include "fakes/ManualWorker.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class Encryptions : public testing::Test {
protected:
    Encryptions() {
        EXPECT_TRUE(writeFileAtomically(store_, "{}"));
        start();
    }

    void start() {
        encryption_.reset();
        vault_ = std::make_shared<Vault>(directory_.path());
        encryption_ = std::make_unique<Encryption>(
            Encryption::Services{jobs_, worker_, keyring_, vault_,
                                 [this]() -> Result<void> {
                                     return full_ ? failure(u"the disk is full"_s) : Result<void>();
                                 },
                                 [this] { ++keyFileChanges_; }, KeyFile::Cost{1, 8}});
        QObject::connect(encryption_.get(), &Encryption::opened, encryption_.get(),
                         [this] { ++openings_; });
        encryption_->start();
        settle();
    }

    void settle() { scheduler_.advance(Seconds(1)); }

    void type(const char* passphrase) {
        encryption_->tryPassphrase(LockedBytes::copyOf(passphrase));
        settle();
    }

    [[nodiscard]] bool isEncrypted() const { return formOf(*readFile(store_)) == FileForm::sealed; }

    [[nodiscard]] Encryption::State state() const { return encryption_->state(); }

    [[nodiscard]] std::string problem() const { return encryption_->problem().toStdString(); }

    void turnOn() {
        encryption_->useKeyring();
        settle();
        ASSERT_EQ(state(), Encryption::Open) << problem();
        ASSERT_TRUE(isEncrypted());
    }

    QTemporaryDir directory_;
    QString store_ = directory_.filePath(u"store.json"_s);
    ManualScheduler scheduler_;
    ManualWorker worker_;
    FakeDetachedJobs jobs_{scheduler_};
    FakeKeyring keyring_{scheduler_};
    bool full_ = false;
    int keyFileChanges_ = 0;
    int openings_ = 0;
    std::shared_ptr<Vault> vault_;
    std::unique_ptr<Encryption> encryption_;
};

TEST_F(Encryptions, ByTheKeyringOpensByItselfAndEndsWithoutATrace) {
    EXPECT_EQ(state(), Encryption::Off);
    turnOn();
    EXPECT_GT(keyFileChanges_, 0);
    EXPECT_EQ(keyring_.secrets.size(), 1);
    openings_ = 0;
    start();
    EXPECT_EQ(state(), Encryption::Open);
    EXPECT_EQ(openings_, 1);
    encryption_->turnOff();
    settle();
    EXPECT_EQ(state(), Encryption::Off);
    EXPECT_FALSE(isEncrypted());
    EXPECT_EQ(keyring_.secrets.size(), 0);
    EXPECT_EQ(QDir(directory_.path()).entryList(QDir::Files), QStringList(u"store.json"_s));
}

TEST_F(Encryptions, WaitsForALockedKeyring) {
    turnOn();
    keyring_.isLocked = true;
    start();
    EXPECT_EQ(state(), Encryption::WaitingForKeyring);
    keyring_.refusesToUnlock = true;
    encryption_->unlock();
    EXPECT_TRUE(encryption_->isBusy());
    settle();
    EXPECT_EQ(state(), Encryption::WaitingForKeyring) << "the user dismissed the prompt";
    EXPECT_FALSE(encryption_->isBusy());
    keyring_.isLocked = false; // By another program.
    keyring_.notify();
    settle();
    EXPECT_EQ(state(), Encryption::Open);
}

TEST_F(Encryptions, SaysIfTheKeyringIsGoneOrHasLostTheKey) {
    turnOn();
    const QByteArray stored = *readFile(store_);
    keyring_.isThere = false;
    start();
    EXPECT_EQ(state(), Encryption::NoKeyring);
    keyring_.isThere = true;
    const auto kept = std::exchange(keyring_.secrets, {});
    keyring_.notify();
    settle();
    EXPECT_EQ(state(), Encryption::KeyMissing);
    for (const char* wrong :
         {"", "zz", "00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff"}) {
        keyring_.secrets[kept.firstKey()] = wrong;
        keyring_.notify();
        settle();
        EXPECT_EQ(state(), Encryption::KeyMissing) << wrong;
    }
    EXPECT_EQ(readFile(store_), stored) << "nothing is overwritten";
    keyring_.secrets = kept;
    keyring_.notify();
    settle();
    EXPECT_EQ(state(), Encryption::Open);
}

TEST_F(Encryptions, ByPassphraseAsksForIt) {
    encryption_->usePassphrase(LockedBytes::copyOf("correct horse"));
    settle();
    EXPECT_EQ(state(), Encryption::Open);
    EXPECT_TRUE(isEncrypted());
    start();
    EXPECT_EQ(state(), Encryption::WaitingForPassphrase);
    type("battery");
    EXPECT_EQ(state(), Encryption::WaitingForPassphrase);
    EXPECT_EQ(problem(), "That is not the passphrase");
    type("correct horse");
    EXPECT_EQ(state(), Encryption::Open);
    EXPECT_EQ(problem(), "");
}

TEST_F(Encryptions, WhoHasTheKeyCanChange) {
    turnOn();
    const QByteArray stored = *readFile(store_);
    encryption_->usePassphrase(LockedBytes::copyOf("one"));
    settle();
    EXPECT_EQ(keyring_.secrets.size(), 0) << "the old way in is closed";
    encryption_->usePassphrase(LockedBytes::copyOf("two"));
    settle();
    start();
    type("one");
    EXPECT_NE(state(), Encryption::Open);
    type("two");
    EXPECT_EQ(state(), Encryption::Open);
    encryption_->useKeyring();
    settle();
    EXPECT_EQ(readFile(store_), stored) << "the files themselves stay";
    start();
    EXPECT_EQ(state(), Encryption::Open);
}

TEST_F(Encryptions, AKeyringThatDoesNotKeepTheKeyChangesNothing) {
    for (const bool isThere : {false, true}) {
        keyring_.isThere = isThere;
        keyring_.keeps = false;
        encryption_->useKeyring();
        settle();
        EXPECT_EQ(state(), Encryption::Off);
        EXPECT_EQ(problem(), isThere ? "The keyring did not keep the key"
                                     : "The keyring did not keep the key: it does not answer");
        EXPECT_FALSE(isEncrypted());
    }
}

TEST_F(Encryptions, AFullDiskIsSaidAndTheRestIsDoneLater) {
    full_ = true;
    encryption_->useKeyring();
    settle();
    EXPECT_EQ(state(), Encryption::Off);
    EXPECT_EQ(problem(), "the disk is full");
    full_ = false;
    turnOn();
    full_ = true;
    encryption_->turnOff();
    settle();
    EXPECT_EQ(state(), Encryption::Open);
    EXPECT_EQ(problem(), "the disk is full");
    EXPECT_TRUE(isEncrypted());
    full_ = false;
    encryption_->turnOff();
    settle();
    EXPECT_EQ(state(), Encryption::Off);
    EXPECT_FALSE(isEncrypted());
}

TEST_F(Encryptions, AForgottenKeyIsFoundAgain) {
    turnOn();
    encryption_->forgetKey();
    EXPECT_EQ(vault_->state(), Vault::State::locked);
    EXPECT_TRUE(encryption_->isLocked());
    encryption_->getKey();
    settle();
    EXPECT_EQ(state(), Encryption::Open);
}

} // namespace

} // namespace ravelo
