// What the panel shows and does while its store is encrypted.

#include "fakes/FakeKeyring.h"
#include "panel_fixture/PanelFixture.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/setup/OnboardingController.h"
#include "ui/windows/TitledWindow.h"
#include "vault/Encryption.h"

namespace ravelo {

namespace {

constexpr KeyFile::Cost cheap{1, 8};

/// A panel with an encryption that begins locked, by the keyring.
class LockedPanel : public testing::Test {
public:
    LockedPanel() {
        EXPECT_TRUE(writeKeyFile(KeyFile::Guard::keyring));
        keyring.isLocked = true;
    }

    bool writeKeyFile(KeyFile::Guard guard) {
        KeyFile file = KeyFile::of(key, guard, cheap);
        const LockedBytes wrapper = guard == KeyFile::Guard::passphrase
                                        ? file.stretched(LockedBytes::copyOf("p\u00e4ss"))
                                        : LockedBytes::random(KeyFile::wrapperLength);
        file.wrap(key, wrapper);
        const Secret hex = wrapper.hex();
        keyring.secrets[file.service()] = QByteArray(hex.bytes().constData(), hex.bytes().size());
        return writeFileAtomically(folder.filePath(u"key"_s), file.encoded()).has_value();
    }

    void load() {
        vault = std::make_shared<Vault>(folder.path());
        encryption = std::make_unique<Encryption>(
            Encryption::Services{world.jobs, world.worker, keyring, vault, {}, {}, cheap});
        encryption->start();
        world.scheduler.advance(Seconds(0.01));
        PanelFeatures::Services all = services(world, plan.usage);
        all.encryption = encryption.get();
        view = std::make_unique<PanelView>();
        view->load(all, QLocale(u"en_US"_s));
        view->window().show();
        view->window().requestActivate();
        EXPECT_TRUE(eventually([this] { return view->window().isActive(); }));
        world.scheduler.advance(untilBuilt);
        world.controller.toggle();
        view->window().resize(world.controller.frame().size().toSize());
        view->window().grabWindow();
    }

    QQuickItem* item(const QString& name) {
        QQuickItem* found = nullptr;
        EXPECT_TRUE(eventually([&] {
            found = find(view->window().contentItem(), name);
            return found != nullptr && found->isVisible();
        })) << qPrintable(name);
        return found == nullptr ? &nothing : found;
    }

    [[nodiscard]] QString text(const QString& name) {
        return item(name)->property("text").toString();
    }

    void type(const QString& letters) {
        for (const QChar letter : letters) {
            press(view->window(), Qt::Key_unknown, Qt::NoModifier, letter);
        }
    }

    PanelWorld world;
    UsageWorld plan{world.scheduler};
    QTemporaryDir folder;
    const StoreKey key = StoreKey::random();
    FakeKeyring keyring{world.scheduler};
    std::shared_ptr<Vault> vault;
    std::unique_ptr<Encryption> encryption;
    std::unique_ptr<PanelView> view;
    QQuickItem nothing;
};

TEST_F(LockedPanel, WaitsForTheKeyringAndOpensWithIt) {
    load();
    EXPECT_EQ(text(u"lockedTitle"_s), u"Waiting for the keyring\u2026"_s);
    EXPECT_EQ(text(u"lockedDetail"_s),
              u"Your clips are encrypted. They are back as soon as it is unlocked."_s);
    EXPECT_FALSE(item(u"search"_s)->isEnabled());
    clickMiddle(view->window(), item(u"unlock"_s));
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(encryption->state(), Encryption::Open);
    EXPECT_TRUE(item(u"emptyTitle"_s)->isVisible());
    EXPECT_TRUE(item(u"search"_s)->isEnabled());
}

TEST_F(LockedPanel, AsksForThePassphrase) {
    ASSERT_TRUE(writeKeyFile(KeyFile::Guard::passphrase));
    load();
    EXPECT_EQ(text(u"lockedTitle"_s), u"Your clips are encrypted"_s);
    type(u"wrong"_s);
    EXPECT_EQ(item(u"dots"_s)->childItems().size(), 6) << "a dot a letter, and their repeater";
    press(view->window(), Qt::Key_Return);
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(encryption->problem(), u"That is not the passphrase"_s);
    EXPECT_EQ(item(u"secret"_s)->property("length").toInt(), 0) << "the field is empty again";
    type(u"p\u00e4x"_s);
    press(view->window(), Qt::Key_Backspace);
    type(u"ss"_s);
    clickMiddle(view->window(), item(u"openStore"_s));
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(encryption->state(), Encryption::Open) << qPrintable(encryption->problem());
}

TEST_F(LockedPanel, IsEncryptedByAPassphraseTypedIntoTheSettings) {
    ASSERT_TRUE(QFile::remove(folder.filePath(u"key"_s)));
    keyring.isThere = false;
    load();
    SettingsWindow settings{
        {{view->window()}, world.store, world.settings, [] {}, u"X11 (for a reason)"_s}};
    settings.show();
    QQuickWindow& window = *settings.window();
    ASSERT_TRUE(eventually([&] { return window.isActive(); }));
    press(window, Qt::Key_3, Qt::ControlModifier);
    world.scheduler.advance(Seconds(0.1));
    clickMiddle(window, find(window.contentItem(), u"encrypt"_s));
    window.close();
    settings.show();
    ASSERT_TRUE(eventually([&] { return window.isActive(); }));
    EXPECT_FALSE(find(window.contentItem(), u"encrypt"_s)->property("on").toBool())
        << "it was not finished";
    clickMiddle(window, find(window.contentItem(), u"encrypt"_s));
    for (const char* field : {"the first field", "the second"}) {
        for (const QChar letter : u"words"_s) {
            press(window, Qt::Key_unknown, Qt::NoModifier, letter);
        }
        EXPECT_EQ(encryption->state(), Encryption::Off) << field;
        press(window, Qt::Key_Return);
    }
    world.scheduler.advance(Seconds(0.1));
    EXPECT_TRUE(encryption->isOn()) << qPrintable(encryption->problem());
    EXPECT_TRUE(encryption->isByPassphrase());
}

TEST_F(LockedPanel, LetsTheSetupContinueWithThePassphraseThatItHas) {
    ASSERT_TRUE(writeKeyFile(KeyFile::Guard::passphrase));
    load();
    for (const Encryption::State state : {Encryption::WaitingForPassphrase, Encryption::Open}) {
        if (state == Encryption::Open) {
            encryption->tryPassphrase(LockedBytes::copyOf("p\u00e4ss"));
            world.scheduler.advance(Seconds(0.1));
        }
        ASSERT_EQ(encryption->state(), state);
        OnboardingController setup({view->window()}, world.settings, world.screens);
        setup.show();
        const QPointer<TitledWindow> window = setup.window();
        ASSERT_TRUE(eventually([&] { return window->isActive(); }));
        for (const QString& step : {u"start"_s, u"done"_s, u"continue"_s}) {
            clickMiddle(*window, find(window->contentItem(), step));
        }
        EXPECT_EQ(setup.window(), nullptr) << "stuck in the last step, in state " << state;
        EXPECT_TRUE(eventually([&] { return window.isNull(); }));
    }
}

TEST_F(LockedPanel, SaysWhatIsWrong) {
    struct Row {
        std::function<void()> change;
        QString title;
        QString detail;
    };

    const QString safe = u"Nothing was overwritten."_s;
    const Row table[] = {{[&] { keyring.isThere = false; }, u"No keyring answers"_s,
                          u"Ravelo\u2019s key is kept there. Start it, or log in again."_s},
                         {[&] {
                              keyring.isThere = true;
                              keyring.isLocked = false;
                              keyring.secrets.clear();
                          },
                          u"The key is not in the keyring"_s, safe}};
    load();
    for (const Row& row : table) {
        row.change();
        keyring.notify();
        world.scheduler.advance(Seconds(0.1));
        EXPECT_EQ(text(u"lockedTitle"_s), row.title);
        EXPECT_EQ(text(u"lockedDetail"_s), row.detail);
    }
}

TEST_F(LockedPanel, TakesThePassphraseThoughThereAreNewCopies) {
    ASSERT_TRUE(writeKeyFile(KeyFile::Guard::passphrase));
    world.store.addClip(u"new"_s);
    load();
    EXPECT_TRUE(item(u"card0"_s)->isVisible());
    press(view->window(), Qt::Key_Return);
    EXPECT_EQ(world.pasteboard.bytes(plainTextType), "new");
    world.controller.toggle();
    type(u"p\u00e4ss"_s);
    EXPECT_EQ(text(u"searchInput"_s), QString()) << "nobody can read it there";
    press(view->window(), Qt::Key_Return);
    world.scheduler.advance(Seconds(0.1));
    EXPECT_EQ(encryption->state(), Encryption::Open) << qPrintable(encryption->problem());
    EXPECT_TRUE(item(u"search"_s)->isEnabled());
}

TEST_F(LockedPanel, ShowsNewCopiesUntilThen) {
    world.store.addClip(u"new"_s);
    load();
    EXPECT_TRUE(item(u"card0"_s)->isVisible());
    EXPECT_TRUE(item(u"search"_s)->isEnabled());
    type(u"n"_s);
    EXPECT_EQ(text(u"searchInput"_s), u"n"_s);
    for (const QString& tab : {u"Notes"_s, u"Shelf"_s}) {
        world.settings.lastTab.set(tab);
        world.controller.dismiss();
        world.scheduler.advance(untilBuilt);
        world.controller.toggle();
        EXPECT_TRUE(item(u"locked"_s + tab)->isVisible()) << qPrintable(tab);
    }
}

} // namespace

} // namespace ravelo
