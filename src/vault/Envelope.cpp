#include "vault/Envelope.h"

#include <cstring>
#include <utility>

#include <sodium.h>

namespace ravelo {

namespace {

constexpr QByteArrayView magic("Ravelo\x1a");
constexpr char version = 1;
constexpr char withKey = 1;
constexpr char forLater = 2;

constexpr qsizetype headerLength = formLength + qsizetype(sizeof(KeyId));
constexpr qsizetype saltLength = 16;
constexpr qsizetype nonceLength = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype tagLength = crypto_aead_xchacha20poly1305_ietf_ABYTES;
constexpr qsizetype ownStart = headerLength + saltLength + nonceLength;
constexpr qsizetype nameStart = 2; ///< In a box.

constexpr size_t keyLength = crypto_aead_xchacha20poly1305_ietf_KEYBYTES;
constexpr char context[crypto_kdf_CONTEXTBYTES + 1] = "Ravelo__";

static_assert(crypto_box_PUBLICKEYBYTES == std::tuple_size_v<PublicKey>);
static_assert(crypto_kdf_KEYBYTES == keyLength);

const unsigned char* bytesOf(QByteArrayView view) {
    return reinterpret_cast<const unsigned char*>(view.data());
}

unsigned char* bytesOf(QByteArray& array) {
    return reinterpret_cast<unsigned char*>(array.data());
}

LockedBytes derived(const LockedBytes& master, uint64_t number) {
    LockedBytes key(keyLength);
    crypto_kdf_derive_from_key(key.data(), key.size(), number, context, master.data());
    return key;
}

QByteArray header(char kind, const KeyId& id) {
    QByteArray bytes = magic.toByteArray();
    bytes.append(version).append(kind);
    bytes.append(reinterpret_cast<const char*>(id.data()), qsizetype(id.size()));
    return bytes;
}

bool isFor(const KeyId& id, const QByteArray& bytes) {
    return bytes.size() >= headerLength &&
           std::memcmp(bytes.constData() + formLength, id.data(), id.size()) == 0;
}

} // namespace

FileForm formOf(QByteArrayView bytes) {
    if (bytes.size() < formLength || !bytes.startsWith(magic)) {
        return FileForm::plain;
    }
    const char kind = bytes[magic.size() + 1];
    if (bytes[magic.size()] != version || (kind != withKey && kind != forLater)) {
        return FileForm::newer;
    }
    return kind == withKey ? FileForm::sealed : FileForm::sealedForLater;
}

StoreKey::StoreKey(const KeyId& id, LockedBytes master)
    : id_(id),
      master_(std::move(master)),
      files_(derived(master_, 1)),
      tags_(derived(master_, 2)),
      secret_(crypto_box_SECRETKEYBYTES) {
    const LockedBytes seed = derived(master_, 3);
    crypto_box_seed_keypair(public_.data(), secret_.data(), seed.data());
}

StoreKey StoreKey::random() {
    LockedBytes master = LockedBytes::random(keyLength);
    KeyId id{};
    randombytes_buf(id.data(), id.size());
    return {id, std::move(master)};
}

LockedBytes StoreKey::fileKey(const unsigned char* salt) const {
    LockedBytes key(keyLength);
    crypto_generichash(key.data(), key.size(), salt, saltLength, files_.data(), files_.size());
    return key;
}

QByteArray StoreKey::tag(QByteArrayView bytes) const {
    QByteArray tag(crypto_generichash_BYTES, Qt::Uninitialized);
    crypto_generichash(bytesOf(tag), size_t(tag.size()), bytesOf(bytes), size_t(bytes.size()),
                       tags_.data(), tags_.size());
    return tag;
}

QByteArray StoreKey::seal(const QString& name, QByteArrayView bytes) const {
    QByteArray sealed = header(withKey, id_);
    sealed.resize(ownStart + bytes.size() + tagLength);
    unsigned char* const start = bytesOf(sealed);
    randombytes_buf(start + headerLength, saltLength + nonceLength);
    const QByteArray authenticated = sealed.first(ownStart) + name.toUtf8();
    const LockedBytes key = fileKey(start + headerLength);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        start + ownStart, nullptr, bytesOf(bytes), size_t(bytes.size()), bytesOf(authenticated),
        size_t(authenticated.size()), nullptr, start + headerLength + saltLength, key.data());
    return sealed;
}

std::optional<QByteArray> StoreKey::unseal(const QString& name, const QByteArray& bytes) const {
    if (!isFor(id_, bytes)) {
        return std::nullopt;
    }
    switch (formOf(bytes)) {
    case FileForm::sealed:
        return unsealOwn(name, bytes);
    case FileForm::sealedForLater:
        return unsealBox(name, bytes);
    case FileForm::plain:
    case FileForm::newer:
        break;
    }
    return std::nullopt;
}

std::optional<QByteArray> StoreKey::unsealOwn(const QString& name, const QByteArray& bytes) const {
    if (bytes.size() < ownStart + tagLength) {
        return std::nullopt;
    }
    const unsigned char* const start = bytesOf(bytes);
    const QByteArray authenticated = bytes.first(ownStart) + name.toUtf8();
    const LockedBytes key = fileKey(start + headerLength);
    QByteArray plain(bytes.size() - ownStart - tagLength, Qt::Uninitialized);
    const bool good =
        crypto_aead_xchacha20poly1305_ietf_decrypt(
            bytesOf(plain), nullptr, nullptr, start + ownStart, size_t(bytes.size() - ownStart),
            bytesOf(authenticated), size_t(authenticated.size()), start + headerLength + saltLength,
            key.data()) == 0;
    return good ? std::optional(std::move(plain)) : std::nullopt;
}

std::optional<QByteArray> StoreKey::unsealBox(const QString& name, const QByteArray& bytes) const {
    const qsizetype length = bytes.size() - headerLength - qsizetype(crypto_box_SEALBYTES);
    const QByteArray expected = name.toUtf8();
    if (length < nameStart + expected.size()) {
        return std::nullopt;
    }
    QByteArray plain(length, Qt::Uninitialized);
    if (crypto_box_seal_open(bytesOf(plain), bytesOf(bytes) + headerLength,
                             size_t(bytes.size() - headerLength), public_.data(),
                             secret_.data()) != 0) {
        return std::nullopt;
    }
    const qsizetype nameLength = uchar(plain[0]) | uchar(plain[1]) << 8;
    if (nameLength != expected.size() || plain.sliced(nameStart, nameLength) != expected) {
        return std::nullopt;
    }
    return plain.sliced(nameStart + nameLength);
}

QByteArray sealForLater(const KeyId& id, const PublicKey& key, const QString& name,
                        QByteArrayView bytes) {
    const QByteArray utf8 = name.toUtf8();
    QByteArray plain;
    plain.reserve(nameStart + utf8.size() + bytes.size());
    plain.append(char(utf8.size() & 0xff)).append(char(utf8.size() >> 8 & 0xff));
    plain.append(utf8).append(bytes.data(), bytes.size());
    QByteArray sealed = header(forLater, id);
    sealed.resize(headerLength + plain.size() + qsizetype(crypto_box_SEALBYTES));
    crypto_box_seal(bytesOf(sealed) + headerLength, bytesOf(plain), size_t(plain.size()),
                    key.data());
    return sealed;
}

} // namespace ravelo
