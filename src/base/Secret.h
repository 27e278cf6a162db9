#pragma once

#include <QByteArray>

#include <memory>
#include <utility>

#include <string.h>

namespace ravelo {

/// Bytes that are overwritten with zeros when the last copy of this value is destroyed. Copies
/// share the bytes, and so do copies of `bytes()`, which are zeros from then on. Whoever makes a
/// deep copy must erase it.
class Secret {
public:
    Secret() = default;

    /// Owns the buffer. If it is shared, this copies it, and the original is not erased.
    explicit Secret(QByteArray bytes) : buffer_(std::make_shared<const Buffer>(std::move(bytes))) {}

    [[nodiscard]] QByteArray bytes() const { return buffer_ ? buffer_->bytes : QByteArray(); }

    [[nodiscard]] bool isEmpty() const { return !buffer_ || buffer_->bytes.isEmpty(); }

private:
    struct Buffer {
        QByteArray bytes;

        explicit Buffer(QByteArray from) : bytes(std::move(from)) { bytes.detach(); }

        ~Buffer() {
            // Not data(), which would detach if it is shared.
            explicit_bzero(const_cast<char*>(bytes.constData()), static_cast<size_t>(bytes.size()));
        }

        Buffer(const Buffer&) = delete;
        Buffer& operator=(const Buffer&) = delete;
    };

    std::shared_ptr<const Buffer> buffer_;
};

} // namespace ravelo
