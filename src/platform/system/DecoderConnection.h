#pragma once

#include "decode/Protocol.h"
#include "platform/system/Descriptor.h"

#include <QByteArray>

#include <chrono>
#include <optional>

namespace ravelo {

/// The socket to one ravelo-decode, which is killed with it. What comes from there is not trusted.
/// Blocks; one thread at a time.
class DecoderConnection {
public:
    struct Answer {
        decode::Reply reply;
        QByteArray contents; ///< As many bytes as the reply says.
    };

    /// Starts the program, which nobody has to wait for; nothing if that fails.
    [[nodiscard]] static std::optional<DecoderConnection> start(const QByteArray& program);

    /// Speaks with whoever has the other end; `process` is its pidfd, if it is to be killed.
    explicit DecoderConnection(Descriptor socket, Descriptor process = {})
        : socket_(std::move(socket)), process_(std::move(process)) {}

    DecoderConnection(DecoderConnection&&) noexcept = default;
    DecoderConnection& operator=(DecoderConnection&&) noexcept = default;
    DecoderConnection(const DecoderConnection&) = delete;
    DecoderConnection& operator=(const DecoderConnection&) = delete;
    ~DecoderConnection();

    /// False if nobody is there any more.
    [[nodiscard]] bool send(const decode::Request& request, const Descriptor& picture);

    /// Waits until it reads requests.
    [[nodiscard]] bool isReady();

    /// Nothing if it has ended, takes longer than `patience`, or says something that makes no
    /// sense.
    [[nodiscard]] std::optional<Answer> receive(std::chrono::milliseconds patience);

private:
    Descriptor socket_;
    Descriptor process_;
    bool ready_ = false;
};

} // namespace ravelo
