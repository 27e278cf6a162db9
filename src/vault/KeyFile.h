#pragma once

#include "base/Result.h"
#include "vault/Envelope.h"

#include <QByteArray>

#include <optional>

namespace ravelo {

/// The file "key" of an encrypted store: the store's key, wrapped by another one that the keyring
/// has or that a passphrase gives (Argon2id). Rewriting it atomically changes keyring or
/// passphrase without touching the store. Any thread.
///
///     7 bytes   "RavKey", 0x1a
///     1         version: 1
///     1         guard: 1 keyring, 2 passphrase
///     1         goal: 1 encrypted, 2 plain
///     4, 4      Argon2id: passes, KiB of memory (little endian)
///     16, 16    id of the store's key; salt for Argon2id
///     32        the store's public key
///     24, 48    nonce and the wrapped key (XChaCha20-Poly1305)
///     32        keyed BLAKE2b of all before it, with a key that follows from the store's
struct KeyFile {
    enum class Guard : quint8 { keyring = 1, passphrase = 2 };
    /// What all files are converted to.
    enum class Goal : quint8 { encrypted = 1, plain = 2 };

    struct Cost {
        quint32 passes = 3;
        quint32 kibibytes = 256 * 1024;

        friend bool operator==(const Cost&, const Cost&) = default;
    };

    Guard guard = Guard::keyring;
    Goal goal = Goal::encrypted;
    Cost cost;
    KeyId id{};
    std::array<unsigned char, 16> salt{};
    PublicKey publicKey{};
    std::array<unsigned char, 24> nonce{};
    std::array<unsigned char, 48> wrapped{};
    std::array<unsigned char, 32> tag{};

    friend bool operator==(const KeyFile&, const KeyFile&) = default;

    [[nodiscard]] QByteArray encoded() const;

    enum class Problem { newer, damaged };
    [[nodiscard]] static tl::expected<KeyFile, Problem> decoded(const QByteArray& bytes);

    /// With a new salt, not yet wrapped.
    [[nodiscard]] static KeyFile of(const StoreKey& key, Guard guard, Cost cost);

    /// Sets the wrapped key and the tag. `wrapper` has `wrapperLength` bytes.
    void wrap(const StoreKey& key, const LockedBytes& wrapper);
    /// Nothing if the wrapper is wrong or the file was changed.
    [[nodiscard]] std::optional<StoreKey> unwrap(const LockedBytes& wrapper) const;

    void setGoal(Goal to, const StoreKey& key);

    /// Takes about a second and 256 MB: not for the main thread. Empty if there is not enough
    /// memory.
    [[nodiscard]] LockedBytes stretched(const LockedBytes& passphrase) const;

    static constexpr size_t wrapperLength = 32;

    /// The name of the wrapper in the keyring.
    [[nodiscard]] QString service() const;
};

} // namespace ravelo
