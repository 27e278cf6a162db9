#include "vault/KeyFile.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

#include <sodium.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView magic("RavKey\x1a");
constexpr char version = 1;

// Dearer than any that we write, but still possible: a file could otherwise stop the program.
constexpr quint32 maxPasses = 20;
constexpr quint32 maxKibibytes = 2 * 1024 * 1024;

template <size_t N>
void append(QByteArray& bytes, const std::array<unsigned char, N>& field) {
    bytes.append(reinterpret_cast<const char*>(field.data()), qsizetype(N));
}

void append(QByteArray& bytes, quint32 number) {
    char little[4];
    qToLittleEndian(number, little);
    bytes.append(little, sizeof(little));
}

/// Reads one field after the other; the length was checked before.
class Fields {
public:
    explicit Fields(const char* start) : at_(start) {}

    quint8 byte() { return static_cast<quint8>(*at_++); }

    quint32 number() {
        const auto value = qFromLittleEndian<quint32>(at_);
        at_ += sizeof(value);
        return value;
    }

    template <size_t N>
    void read(std::array<unsigned char, N>& field) {
        std::memcpy(field.data(), at_, N);
        at_ += N;
    }

private:
    const char* at_;
};

/// What the wrapping authenticates; not the goal, which changes without the wrapper.
QByteArray authenticated(const KeyFile& file) {
    KeyFile same = file;
    same.goal = KeyFile::Goal::encrypted;
    return same.encoded().first(magic.size() + 3 + 8 + 16 + 16 + 32);
}

QByteArray tagged(const KeyFile& file) {
    return file.encoded().chopped(qsizetype(file.tag.size()));
}

void setTag(KeyFile& file, const StoreKey& key) {
    const QByteArray tag = key.tag(tagged(file));
    std::memcpy(file.tag.data(), tag.constData(), file.tag.size());
}

const unsigned char* bytesOf(const QByteArray& array) {
    return reinterpret_cast<const unsigned char*>(array.constData());
}

} // namespace

QByteArray KeyFile::encoded() const {
    QByteArray bytes = magic.toByteArray();
    bytes.append(version).append(char(guard)).append(char(goal));
    append(bytes, cost.passes);
    append(bytes, cost.kibibytes);
    append(bytes, id);
    append(bytes, salt);
    append(bytes, publicKey);
    append(bytes, nonce);
    append(bytes, wrapped);
    append(bytes, tag);
    return bytes;
}

tl::expected<KeyFile, KeyFile::Problem> KeyFile::decoded(const QByteArray& bytes) {
    static const qsizetype length = KeyFile().encoded().size();
    const auto problem = [](Problem what) {
        return tl::unexpected(what);
    };
    if (!bytes.startsWith(magic) || bytes.size() <= magic.size()) {
        return problem(Problem::damaged);
    }
    if (bytes[magic.size()] != version) {
        return problem(Problem::newer);
    }
    if (bytes.size() != length) {
        return problem(Problem::damaged);
    }
    KeyFile file;
    Fields fields(bytes.constData() + magic.size() + 1);
    const quint8 guard = fields.byte();
    const quint8 goal = fields.byte();
    file.cost.passes = fields.number();
    file.cost.kibibytes = fields.number();
    fields.read(file.id);
    fields.read(file.salt);
    fields.read(file.publicKey);
    fields.read(file.nonce);
    fields.read(file.wrapped);
    fields.read(file.tag);
    const auto isOneOf = [](quint8 value) {
        return value == 1 || value == 2;
    };
    if (!isOneOf(guard) || !isOneOf(goal) || file.cost.passes < 1 || file.cost.passes > maxPasses ||
        file.cost.kibibytes < 8 || file.cost.kibibytes > maxKibibytes) {
        return problem(Problem::damaged);
    }
    file.guard = Guard(guard);
    file.goal = Goal(goal);
    return file;
}

KeyFile KeyFile::of(const StoreKey& key, Guard guard, Cost cost) {
    KeyFile file;
    file.guard = guard;
    file.cost = cost;
    file.id = key.id();
    file.publicKey = key.publicKey();
    randombytes_buf(file.salt.data(), file.salt.size());
    return file;
}

void KeyFile::wrap(const StoreKey& key, const LockedBytes& wrapper) {
    static_assert(sizeof(wrapped) == 32 + crypto_aead_xchacha20poly1305_ietf_ABYTES);
    static_assert(sizeof(nonce) == crypto_aead_xchacha20poly1305_ietf_NPUBBYTES);
    randombytes_buf(nonce.data(), nonce.size());
    const QByteArray with = authenticated(*this);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        wrapped.data(), nullptr, key.master().data(), key.master().size(), bytesOf(with),
        size_t(with.size()), nullptr, nonce.data(), wrapper.data());
    setTag(*this, key);
}

std::optional<StoreKey> KeyFile::unwrap(const LockedBytes& wrapper) const {
    if (wrapper.size() != wrapperLength) {
        return std::nullopt;
    }
    LockedBytes master(wrapped.size() - crypto_aead_xchacha20poly1305_ietf_ABYTES);
    const QByteArray with = authenticated(*this);
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(
            master.data(), nullptr, nullptr, wrapped.data(), wrapped.size(), bytesOf(with),
            size_t(with.size()), nonce.data(), wrapper.data()) != 0) {
        return std::nullopt;
    }
    StoreKey key(id, std::move(master));
    const QByteArray expected = key.tag(tagged(*this));
    const bool whole = std::ranges::equal(
        QByteArrayView(expected), tag, [](char a, uchar b) { return static_cast<uchar>(a) == b; });
    return whole && key.publicKey() == publicKey ? std::optional(std::move(key)) : std::nullopt;
}

void KeyFile::setGoal(Goal to, const StoreKey& key) {
    goal = to;
    setTag(*this, key);
}

LockedBytes KeyFile::stretched(const LockedBytes& passphrase) const {
    static_assert(sizeof(salt) == crypto_pwhash_SALTBYTES);
    LockedBytes key(wrapperLength);
    const bool done =
        crypto_pwhash(key.data(), key.size(), reinterpret_cast<const char*>(passphrase.data()),
                      passphrase.size(), salt.data(), cost.passes, size_t(cost.kibibytes) * 1024,
                      crypto_pwhash_ALG_ARGON2ID13) == 0;
    return done ? std::move(key) : LockedBytes();
}

QString KeyFile::service() const {
    const QByteArray bytes(reinterpret_cast<const char*>(id.data()), qsizetype(id.size()));
    return u"Ravelo store "_s + QString::fromLatin1(bytes.toHex());
}

} // namespace ravelo
