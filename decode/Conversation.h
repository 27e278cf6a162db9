#pragma once

#include "base/Descriptor.h"
#include "decode/Protocol.h"

#include <QByteArray>

#include <optional>

namespace ravelo::decode {

struct Order {
    Request request;
    Descriptor picture;
};

/// Waits for the next request; nothing if the other side has closed or after `idleSeconds`.
[[nodiscard]] std::optional<Order> nextOrder();

/// All bytes of the file; empty if they could not be read or are too many. A copy, because the file
/// may be truncated meanwhile.
[[nodiscard]] QByteArray readAll(const Descriptor& file);

/// `contents` is sent in a sealed memfd. False if the other side has closed.
bool send(Reply reply, QByteArrayView contents);

} // namespace ravelo::decode
