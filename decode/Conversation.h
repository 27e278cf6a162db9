#pragma once

#include "decode/Protocol.h"

#include <QByteArray>

#include <optional>

namespace ravelo::decode {

struct Order {
    Request request;
    QByteArray bytes; ///< Of the picture; empty if they could not be read or are too many.
};

/// Waits for the next one; nothing once nobody is there or nothing has come for `idleSeconds`.
[[nodiscard]] std::optional<Order> nextOrder();

/// `contents` goes along in a sealed memfd. False if nobody takes it.
bool send(Reply reply, QByteArrayView contents);

} // namespace ravelo::decode
