#pragma once

#include <QByteArray>

#include <memory>
#include <utility>

#include <string.h>

namespace ravelo {

/// Bytes that are overwritten with zeros when the last copy of this value goes. Copies share the
/// bytes, and so do copies of `bytes()`: what is still held of them then is zeros. Copies that
/// others make of the contents are theirs to erase.
class Secret {
public:
    Secret() = default;

    /// Takes over the buffer. If it is shared, it copies, and the other copy is not erased.
    explicit Secret(QByteArray bytes) : buffer_(std::make_shared<const Buffer>(std::move(bytes))) {}

    [[nodiscard]] QByteArray bytes() const { return buffer_ ? buffer_->bytes : QByteArray(); }

    [[nodiscard]] bool isEmpty() const { return !buffer_ || buffer_->bytes.isEmpty(); }

private:
    struct Buffer {
        QByteArray bytes;

        explicit Buffer(QByteArray from) : bytes(std::move(from)) { bytes.detach(); }

        ~Buffer() {
            // Not data(): that would copy if others still share it.
            explicit_bzero(const_cast<char*>(bytes.constData()), static_cast<size_t>(bytes.size()));
        }

        Buffer(const Buffer&) = delete;
        Buffer& operator=(const Buffer&) = delete;
    };

    std::shared_ptr<const Buffer> buffer_;
};

} // namespace ravelo
