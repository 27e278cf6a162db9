#include "decode/Conversation.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
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

int descriptorIn(msghdr& message) {
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    int file = -1;
    if (header != nullptr && header->cmsg_type == SCM_RIGHTS &&
        header->cmsg_len == CMSG_LEN(sizeof(int))) {
        std::memcpy(&file, CMSG_DATA(header), sizeof(file));
    }
    return file;
}

/// A copy, because the file may be truncated meanwhile.
QByteArray readAll(int file) {
    const off_t size = lseek(file, 0, SEEK_END);
    if (size <= 0 || size > maxInput) {
        return {};
    }
    QByteArray bytes(size, Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            pread(file, bytes.data() + done, static_cast<size_t>(bytes.size() - done), done);
        if (count <= 0) {
            return {};
        }
        done += count;
    }
    return bytes;
}

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

int sealed(QByteArrayView bytes) {
    const int file = memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    const int seals = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;
    if (file >= 0 && (!writeAll(file, bytes) || fcntl(file, F_ADD_SEALS, seals) != 0)) {
        close(file);
        return -1;
    }
    return file;
}

} // namespace

std::optional<Order> nextOrder() {
    Order order{};
    Ancillary ancillary{};
    iovec packet{&order.request, sizeof(order.request)};
    msghdr message{};
    message.msg_iov = &packet;
    message.msg_iovlen = 1;
    message.msg_control = ancillary.room.data();
    message.msg_controllen = ancillary.room.size();
    const ssize_t size = recvmsg(socketNumber, &message, MSG_CMSG_CLOEXEC);
    const int file = size > 0 ? descriptorIn(message) : -1;
    if (size != sizeof(order.request) || file < 0) {
        return std::nullopt;
    }
    order.bytes = readAll(file);
    close(file);
    return order;
}

bool send(Reply reply, QByteArrayView contents) {
    const int file = contents.isEmpty() ? -1 : sealed(contents);
    if (!contents.isEmpty() && file < 0) {
        return false;
    }
    reply.bytes = contents.size();
    Ancillary ancillary{};
    iovec packet{&reply, sizeof(reply)};
    msghdr message{};
    message.msg_iov = &packet;
    message.msg_iovlen = 1;
    if (file >= 0) {
        message.msg_control = ancillary.room.data();
        message.msg_controllen = ancillary.room.size();
        ancillary.header.cmsg_level = SOL_SOCKET;
        ancillary.header.cmsg_type = SCM_RIGHTS;
        ancillary.header.cmsg_len = CMSG_LEN(sizeof(int));
        std::memcpy(CMSG_DATA(&ancillary.header), &file, sizeof(file));
    }
    const bool sent = sendmsg(socketNumber, &message, MSG_NOSIGNAL) == sizeof(reply);
    if (file >= 0) {
        close(file);
    }
    return sent;
}

} // namespace ravelo::decode
