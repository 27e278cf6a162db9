#pragma once

#include "base/Descriptor.h"

#include <QByteArrayView>

#include <cstddef>

#include <fcntl.h>
#include <sys/types.h>

namespace ravelo::decode {

inline constexpr int allSeals = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

/// A sealed memfd with these bytes; none if it cannot be made.
[[nodiscard]] Descriptor sealedMemory(QByteArrayView bytes);

/// Sends one packet, with the descriptor if there is one. False if the other side has gone.
[[nodiscard]] bool sendPacket(int socket, const void* packet, size_t size, const Descriptor& file);

struct Received {
    bool whole = false; ///< The packet has exactly the expected size and at most one descriptor.
    Descriptor file;    ///< Whole or not.
};

/// Receives one packet of `size` bytes, with `flags` as for recvmsg(2).
[[nodiscard]] Received receivePacket(int socket, void* packet, size_t size, int flags);

} // namespace ravelo::decode
