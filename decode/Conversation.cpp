#include "decode/Conversation.h"

#include "decode/Packets.h"

#include <utility>

#include <unistd.h>

namespace ravelo::decode {

std::optional<Order> nextOrder() {
    Order order{};
    Received received = receivePacket(socketNumber, &order.request, sizeof(order.request), 0);
    order.picture = std::move(received.file);
    return received.whole && order.picture ? std::optional(std::move(order)) : std::nullopt;
}

QByteArray readAll(const Descriptor& file) {
    const off_t size = lseek(file.number(), 0, SEEK_END);
    if (size <= 0 || size > maxBytes) {
        return {};
    }
    QByteArray bytes(size, Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = pread(file.number(), bytes.data() + done,
                                    static_cast<size_t>(bytes.size() - done), done);
        if (count <= 0) {
            return {};
        }
        done += count;
    }
    return bytes;
}

bool send(Reply reply, QByteArrayView contents) {
    const Descriptor file = contents.isEmpty() ? Descriptor() : sealedMemory(contents);
    if (!contents.isEmpty() && !file) {
        return false;
    }
    reply.bytes = contents.size();
    return sendPacket(socketNumber, &reply, sizeof(reply), file);
}

} // namespace ravelo::decode
