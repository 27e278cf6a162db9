#include "app/KeyWhileLocked.h"

#include "../store/StoreFixture.h"
#include "fakes/FakeDisplay.h"
#include "fakes/FakeKeyring.h"
#include "platform/system/DecoderProcess.h"
#include "settings/AppSettings.h"
#include "vault/Encryption.h"
#include "vault/Vault.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class KeyWhileLockedTest : public StoreFixture {
protected:
    KeyWhileLockedTest() {
        start();
        store_->addClip(u"kept"_s);
        encryption_ = std::make_unique<Encryption>(
            Encryption::Services{jobs_, worker_, keyring_, store_->vault(), {}, {}, {1, 8}});
        QObject::connect(encryption_.get(), &Encryption::opened, store_.get(), &Store::unlock);
        encryption_->start();
        encryption_->useKeyring();
        settle();
        settings_.forgetKeyWhileLocked.set(true);
        watchScreen();
    }

    void watchScreen() {
        screenKey_ = std::make_unique<KeyWhileLocked>(
            KeyWhileLocked::Services{settings_, *store_, *encryption_, decoderProcess_, {&screen_}},
            KeyWhileLocked::Reports{[this] { ++forgotten_; }, [](const QString&) {},
                                    [] {
                                    }});
    }

    [[nodiscard]] bool isOpen() const {
        return store_->vault()->state() == Vault::State::open && !store_->isLocked();
    }

    FakeLoginItem loginItem_;
    AppSettings settings_{preferences_, loginItem_};
    FakeKeyring keyring_{scheduler_};
    FakeSessionLock screen_;
    DecoderProcess decoderProcess_{"none", "/nowhere"};
    std::unique_ptr<Encryption> encryption_;
    std::unique_ptr<KeyWhileLocked> screenKey_;
    int forgotten_ = 0;
};

TEST_F(KeyWhileLockedTest, GoesAndComesWithTheLock) {
    ASSERT_TRUE(isOpen());
    screen_.setLocked(true);
    settle();
    EXPECT_EQ(store_->vault()->state(), Vault::State::locked);
    EXPECT_EQ(forgotten_, 1);
    screen_.setLocked(false);
    settle();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(texts(), "kept");
}

TEST_F(KeyWhileLockedTest, ComesIfTheScreenWasLockedAtTheStart) {
    screen_.setLocked(true);
    settle();
    watchScreen();
    screen_.setLocked(false);
    settle();
    EXPECT_EQ(texts(), "kept");
}

TEST_F(KeyWhileLockedTest, GoesAlsoIfItComesWhileTheScreenIsLocked) {
    for (const bool isOpening : {false, true}) {
        screen_.setLocked(true);
        settle();
        screen_.setLocked(false);
        if (isOpening) {
            scheduler_.advance(Seconds(0.1)); // The keyring has answered, the disk has not.
        }
        screen_.setLocked(true);
        settle();
        settle();
        EXPECT_EQ(store_->vault()->state(), Vault::State::locked)
            << (isOpening ? "the store was opening" : "the keyring was asked");
        EXPECT_TRUE(store_->clips().isEmpty());
        screen_.setLocked(false);
        settle();
        EXPECT_EQ(texts(), "kept");
    }
}

} // namespace

} // namespace ravelo
