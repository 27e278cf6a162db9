#include "decode/Conversation.h"

#include "decode/Packets.h"

#include <unistd.h>

namespace ravelo::decode {

namespace {

/// A copy, because the file may be truncated meanwhile.
QByteArray readAll(int file) {
    const off_t size = lseek(file, 0, SEEK_END);
    if (size <= 0 || size > maxBytes) {
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

} // namespace

std::optional<Order> nextOrder() {
    Order order{};
    const Received received = receivePacket(socketNumber, &order.request, sizeof(order.request), 0);
    order.file = received.file;
    return received.whole && received.file >= 0 ? std::optional(order) : std::nullopt;
}

QByteArray takeBytes(int file) {
    QByteArray bytes = readAll(file);
    close(file);
    return bytes;
}

bool send(Reply reply, QByteArrayView contents) {
    const int file = contents.isEmpty() ? -1 : sealedMemory(contents);
    if (!contents.isEmpty() && file < 0) {
        return false;
    }
    reply.bytes = contents.size();
    const bool sent = sendPacket(socketNumber, &reply, sizeof(reply), file);
    if (file >= 0) {
        close(file);
    }
    return sent;
}

} // namespace ravelo::decode
