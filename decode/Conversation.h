#pragma once

#include "decode/Protocol.h"

#include <QByteArray>

#include <optional>

namespace ravelo::decode {

struct Order {
    Request request;
    int file; ///< The picture: to be closed.
};

/// Waits for the next request; nothing if the other side has closed or after `idleSeconds`.
[[nodiscard]] std::optional<Order> nextOrder();

/// All bytes of the picture; empty if they could not be read or are too many. Closes the file.
[[nodiscard]] QByteArray takeBytes(int file);

/// `contents` is sent in a sealed memfd. False if the other side has closed.
bool send(Reply reply, QByteArrayView contents);

} // namespace ravelo::decode
