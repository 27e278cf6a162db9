#include "decode/Packets.h"

#include <array>
#include <cstring>
#include <utility>

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ravelo::decode {

namespace {

/// Room for one descriptor beside a packet.
union Ancillary {
    cmsghdr header;
    std::array<char, CMSG_SPACE(sizeof(int))> room;
};

// With the padding that CMSG_SPACE adds, a second descriptor would fit and come in unseen.
constexpr size_t oneDescriptor = CMSG_LEN(sizeof(int));

bool writeAll(int file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t count = write(file, bytes.data(), static_cast<size_t>(bytes.size()));
        if (count <= 0) {
            return false;
        }
        bytes = bytes.sliced(count);
    }
    return true;
}

} // namespace

Descriptor sealedMemory(QByteArrayView bytes) {
    Descriptor file(memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    const bool sealed =
        file && writeAll(file.number(), bytes) && fcntl(file.number(), F_ADD_SEALS, allSeals) == 0;
    return sealed ? std::move(file) : Descriptor();
}

bool sendPacket(int socket, const void* packet, size_t size, const Descriptor& file) {
    Ancillary ancillary{};
    iovec part{const_cast<void*>(packet), size};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    if (file) {
        const int number = file.number();
        message.msg_control = ancillary.room.data();
        message.msg_controllen = ancillary.room.size();
        ancillary.header.cmsg_level = SOL_SOCKET;
        ancillary.header.cmsg_type = SCM_RIGHTS;
        ancillary.header.cmsg_len = oneDescriptor;
        std::memcpy(CMSG_DATA(&ancillary.header), &number, sizeof(number));
    }
    return sendmsg(socket, &message, MSG_NOSIGNAL) == static_cast<ssize_t>(size);
}

Received receivePacket(int socket, void* packet, size_t size, int flags) {
    Ancillary ancillary{};
    iovec part{packet, size};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = ancillary.room.data();
    message.msg_controllen = oneDescriptor;
    const ssize_t count = recvmsg(socket, &message, flags | MSG_CMSG_CLOEXEC);
    Received received;
    if (count < 0) {
        return received;
    }
    // An empty packet may have brought a descriptor, too.
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    if (header != nullptr && header->cmsg_type == SCM_RIGHTS && header->cmsg_len == oneDescriptor) {
        int number = -1;
        std::memcpy(&number, CMSG_DATA(header), sizeof(number));
        received.file = Descriptor(number);
    }
    received.whole =
        count == static_cast<ssize_t>(size) && (message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) == 0;
    return received;
}

} // namespace ravelo::decode
