#pragma once

#include "vault/LockedBytes.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

namespace ravelo {

/// The format of an encrypted file. Each has a header of its own:
///
///     7 bytes   "Ravelo", 0x1a
///     1         version: 1
///     1         kind: 1 with the store's key, 2 for the store's public key
///     16        id of the store's key
///
/// Kind 1: a salt of 16 bytes and a nonce of 24, then XChaCha20-Poly1305 (RFC 8439 with the longer
/// nonce) under a key of the file's own, keyed BLAKE2b of the salt. The header, salt and nonce
/// included, and the file's name are authenticated. Kind 2: a sealed box of libsodium (X25519,
/// XSalsa20-Poly1305) around the name, as a length of two bytes (little endian) and UTF-8, and the
/// contents. All functions: any thread.

using KeyId = std::array<unsigned char, 16>;
using PublicKey = std::array<unsigned char, 32>;

/// What a file is, by its first bytes.
enum class FileForm {
    plain,
    sealed,
    sealedForLater, ///< For the public key.
    newer           ///< By a later version.
};

[[nodiscard]] FileForm formOf(QByteArrayView bytes);

/// Bytes that `formOf` needs.
inline constexpr qsizetype formLength = 9;

/// The store's key and what follows from it.
class StoreKey {
public:
    StoreKey(const KeyId& id, LockedBytes master);

    [[nodiscard]] static StoreKey random();

    [[nodiscard]] const KeyId& id() const { return id_; }

    [[nodiscard]] const LockedBytes& master() const { return master_; }

    [[nodiscard]] const PublicKey& publicKey() const { return public_; }

    [[nodiscard]] QByteArray seal(const QString& name, QByteArrayView bytes) const;
    /// Of both kinds. Nothing if it was sealed for another key or under another name, or changed.
    [[nodiscard]] std::optional<QByteArray> unseal(const QString& name,
                                                   const QByteArray& bytes) const;
    /// Proves that the bytes come from somebody who has the key.
    [[nodiscard]] QByteArray tag(QByteArrayView bytes) const;

private:
    [[nodiscard]] std::optional<QByteArray> unsealOwn(const QString& name,
                                                      const QByteArray& bytes) const;
    [[nodiscard]] std::optional<QByteArray> unsealBox(const QString& name,
                                                      const QByteArray& bytes) const;
    [[nodiscard]] LockedBytes fileKey(const unsigned char* salt) const;

    KeyId id_;
    LockedBytes master_;
    LockedBytes files_; ///< The files' keys come from it.
    LockedBytes tags_;
    LockedBytes secret_; ///< Belongs to the public key.
    PublicKey public_{};
};

/// Only the holder of the store's key can read it, not even the one who sealed it.
[[nodiscard]] QByteArray sealForLater(const KeyId& id, const PublicKey& key, const QString& name,
                                      QByteArrayView bytes);

} // namespace ravelo
