#pragma once

#include "base/Descriptor.h"
#include "decode/Protocol.h"

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

namespace ravelo {

/// The socket to one ravelo-decode, which is killed with it. Its replies are not trusted.
/// Blocks; one thread at a time.
class DecoderConnection {
public:
    struct Answer {
        decode::Reply reply;
        QByteArray contents; ///< As long as the reply says.
    };

    enum class Formats { png, all };

    /// Starts the program, which needs no waiting for; nothing if that fails.
    [[nodiscard]] static std::optional<DecoderConnection> start(const QByteArray& program,
                                                                Formats formats = Formats::all);

    /// Uses an existing socket; `process` is the pidfd of the other side, if that is to be killed.
    explicit DecoderConnection(Descriptor socket, Descriptor process = {})
        : socket_(std::move(socket)), process_(std::move(process)) {}

    /// Kills the process some seconds after this time, unless it gets a request before. One that
    /// has been taken over would not end by itself.
    void rest(std::chrono::milliseconds max);

    DecoderConnection(DecoderConnection&&) noexcept = default;
    DecoderConnection& operator=(DecoderConnection&&) noexcept = default;
    DecoderConnection(const DecoderConnection&) = delete;
    DecoderConnection& operator=(const DecoderConnection&) = delete;
    ~DecoderConnection();

    /// False if the other side has closed.
    [[nodiscard]] bool send(const decode::Request& request, const Descriptor& picture);

    /// Waits until it is ready for requests.
    [[nodiscard]] bool isReady();

    /// Nothing if it has ended, takes longer than `timeout` or sends an invalid reply.
    [[nodiscard]] std::optional<Answer> receive(std::chrono::milliseconds timeout);

private:
    using Clock = std::chrono::steady_clock;
    using Deadline = std::atomic<Clock::time_point>;

    static void reap(int child, const Descriptor& process, const Deadline& deadline);

    Descriptor socket_;
    Descriptor process_;
    bool ready_ = false;
    std::shared_ptr<Deadline> deadline_ =
        std::make_shared<Deadline>(Clock::time_point::max()); ///< Of the rest.
};

} // namespace ravelo
