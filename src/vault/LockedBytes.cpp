#include "vault/LockedBytes.h"

#include <QtGlobal>

#include <cstring>
#include <utility>

#include <sodium.h>

namespace ravelo {

LockedBytes::LockedBytes(size_t size) : size_(size) {
    static const int ready = sodium_init();
    data_ = ready < 0 ? nullptr : static_cast<unsigned char*>(sodium_malloc(size));
    Q_CHECK_PTR(data_);
    sodium_memzero(data_, size);
}

LockedBytes::LockedBytes(LockedBytes&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}

LockedBytes& LockedBytes::operator=(LockedBytes&& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    return *this;
}

LockedBytes::~LockedBytes() {
    sodium_free(data_); // Overwrites it first.
}

LockedBytes LockedBytes::random(size_t size) {
    LockedBytes bytes(size);
    randombytes_buf(bytes.data(), size);
    return bytes;
}

LockedBytes LockedBytes::copyOf(QByteArrayView bytes) {
    LockedBytes copy(static_cast<size_t>(bytes.size()));
    if (!bytes.isEmpty()) {
        std::memcpy(copy.data(), bytes.data(), copy.size());
    }
    return copy;
}

Secret LockedBytes::hex() const {
    QByteArray digits(static_cast<qsizetype>(2 * size_ + 1), Qt::Uninitialized);
    sodium_bin2hex(digits.data(), static_cast<size_t>(digits.size()), data_, size_);
    digits.chop(1); // The terminator.
    return Secret(std::move(digits));
}

LockedBytes LockedBytes::fromHex(QByteArrayView digits, size_t size) {
    LockedBytes bytes(size);
    size_t written = 0;
    const char* end = nullptr;
    const auto length = static_cast<size_t>(digits.size());
    const bool read =
        sodium_hex2bin(bytes.data(), size, digits.data(), length, nullptr, &written, &end) == 0;
    return read && written == size && end == digits.data() + length ? std::move(bytes)
                                                                    : LockedBytes();
}

} // namespace ravelo
