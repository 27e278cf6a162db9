#pragma once

#include "base/Files.h"
#include "fakes/FakeKeyring.h"
#include "fakes/PanelWorld.h"
#include "vault/Encryption.h"

namespace ravelo {

using namespace Qt::StringLiterals;

/// Encryption as the scene has it, in a folder of its own.
class SceneEncryption {
public:
    SceneEncryption(const QString& scene, PanelWorld& world) : keyring_(world.scheduler) {
        const StoreKey key = StoreKey::random();
        const LockedBytes wrapper = LockedBytes::random(KeyFile::wrapperLength);
        const bool passphrase = scene == u"locked-passphrase";
        KeyFile file = KeyFile::of(
            key, passphrase ? KeyFile::Guard::passphrase : KeyFile::Guard::keyring, cost);
        file.wrap(key, wrapper);
        if (scene.startsWith(u"locked"_s) || scene.startsWith(u"settings-"_s)) {
            (void)writeFileAtomically(folder_.filePath(u"key"_s), file.encoded());
        }
        keyring_.isLocked = scene.startsWith(u"locked"_s);
        const Secret hex = wrapper.hex(); // Wipes what it shares.
        keyring_.secrets[file.service()] = QByteArray(hex.bytes().constData(), hex.bytes().size());
        encryption_.emplace(Encryption::Services{world.jobs,
                                                 world.worker,
                                                 keyring_,
                                                 std::make_shared<Vault>(folder_.path()),
                                                 {},
                                                 {},
                                                 cost});
        encryption_->start();
        world.scheduler.advance(Seconds(0.1));
    }

    [[nodiscard]] Encryption* get() { return &*encryption_; }

private:
    static constexpr KeyFile::Cost cost{1, 8};

    QTemporaryDir folder_;
    FakeKeyring keyring_;
    std::optional<Encryption> encryption_;
};

} // namespace ravelo
