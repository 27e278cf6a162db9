#pragma once

#include <QByteArrayView>

#include <cstddef>

#include <fcntl.h>
#include <sys/types.h>

namespace ravelo::decode {

inline constexpr int allSeals = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

/// A sealed memfd with these bytes, the caller's to close; -1 if there is none to be had.
[[nodiscard]] int sealedMemory(QByteArrayView bytes);

/// Sends one packet, with a descriptor unless that is -1. False if the other side has gone.
[[nodiscard]] bool sendPacket(int socket, const void* packet, size_t size, int file);

struct Received {
    bool whole = false; ///< The packet has exactly the expected size and at most one descriptor.
    int file = -1;      ///< The caller's to close, whole or not.
};

/// Receives one packet of `size` bytes, with `flags` as for recvmsg(2).
[[nodiscard]] Received receivePacket(int socket, void* packet, size_t size, int flags);

} // namespace ravelo::decode
