#pragma once

#include "base/Secret.h"

#include <QByteArrayView>

#include <cstddef>
#include <memory>
#include <span>

namespace ravelo {

/// Bytes of a key or a passphrase: never swapped out as far as the system allows (mlock), left out
/// of core dumps (MADV_DONTDUMP), and overwritten with zeros when destroyed. Zeros at first. Any
/// thread.
class LockedBytes {
public:
    LockedBytes() = default;
    explicit LockedBytes(size_t size);
    LockedBytes(LockedBytes&& other) noexcept;
    LockedBytes& operator=(LockedBytes&& other) noexcept;
    LockedBytes(const LockedBytes&) = delete;
    LockedBytes& operator=(const LockedBytes&) = delete;
    ~LockedBytes();

    [[nodiscard]] static LockedBytes random(size_t size);
    [[nodiscard]] static LockedBytes copyOf(QByteArrayView bytes);

    [[nodiscard]] unsigned char* data() { return data_; }

    [[nodiscard]] const unsigned char* data() const { return data_; }

    [[nodiscard]] size_t size() const { return size_; }

    [[nodiscard]] QByteArrayView view() const {
        return {reinterpret_cast<const char*>(data_), static_cast<qsizetype>(size_)};
    }

    /// As lower-case hexadecimal digits.
    [[nodiscard]] Secret hex() const;
    /// Empty if `digits` are not hexadecimal digits of so many bytes.
    [[nodiscard]] static LockedBytes fromHex(QByteArrayView digits, size_t size);

private:
    unsigned char* data_ = nullptr;
    size_t size_ = 0;
};

} // namespace ravelo
