#pragma once

#include "decode/Protocol.h"

#include <QByteArray>

#include <optional>

namespace ravelo::decode {

struct Order {
    Request request;
    int file; ///< The picture: to be closed.
};

/// Waits for the next one; nothing once the other side has gone or after `idleSeconds`.
[[nodiscard]] std::optional<Order> nextOrder();

/// All bytes of the picture; empty if they could not be read or are too many. Closes the file.
[[nodiscard]] QByteArray takeBytes(int file);

/// `contents` goes along in a sealed memfd. False if the other side has gone.
bool send(Reply reply, QByteArrayView contents);

} // namespace ravelo::decode
