#include "platform/system/DecoderConnection.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace ravelo {

namespace {

using namespace decode;

constexpr std::chrono::milliseconds startTime(5000); ///< On a busy machine.
constexpr int allSeals = F_SEAL_SEAL | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

/// Room for one descriptor beside a packet.
union Ancillary {
    cmsghdr header;
    std::array<char, CMSG_SPACE(sizeof(int))> room;
};

/// Without environment, other descriptors or blocked signals. 0 if it could not be started.
pid_t spawn(const QByteArray& program, int socket) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, socket, socketNumber);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        posix_spawn_file_actions_addopen(&files, stream, "/dev/null", O_RDWR, 0);
    }
    posix_spawn_file_actions_addclosefrom_np(&files, socketNumber + 1);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    std::array arguments{const_cast<char*>(program.constData()), static_cast<char*>(nullptr)};
    std::array environment{static_cast<char*>(nullptr)};
    pid_t child = 0;
    if (posix_spawn(&child, program.constData(), &files, &attributes, arguments.data(),
                    environment.data()) != 0) {
        child = 0;
    }
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return child;
}

Descriptor descriptorIn(msghdr& message) {
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    int file = -1;
    if (header != nullptr && header->cmsg_type == SCM_RIGHTS &&
        header->cmsg_len == CMSG_LEN(sizeof(int))) {
        std::memcpy(&file, CMSG_DATA(header), sizeof(file));
    }
    return Descriptor(file);
}

/// Nothing if the size differs or the memory is not sealed.
std::optional<QByteArray> contents(const Descriptor& memory, int64_t size) {
    struct stat info = {};
    if (size <= 0 || size > maxOutput || !memory || fstat(memory.number(), &info) != 0 ||
        info.st_size != size || fcntl(memory.number(), F_GET_SEALS) != allSeals) {
        return std::nullopt;
    }
    QByteArray bytes(size, Qt::Uninitialized);
    const ssize_t count = pread(memory.number(), bytes.data(), static_cast<size_t>(size), 0);
    return count == size ? std::optional(bytes) : std::nullopt;
}

bool waitFor(const Descriptor& socket, std::chrono::milliseconds timeout) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    pollfd event{socket.number(), POLLIN, 0};
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        const int count = poll(&event, 1, static_cast<int>(std::max<int64_t>(left.count(), 0)));
        if (count >= 0 || errno != EINTR) {
            return count > 0;
        }
    }
}

} // namespace

std::optional<DecoderConnection> DecoderConnection::start(const QByteArray& program) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return std::nullopt;
    }
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    const pid_t child = spawn(program, theirs.number());
    if (child == 0) {
        return std::nullopt;
    }
    // It ends by itself at any time, so something must reap it: forking twice would take longer
    // than reading most pictures.
    std::thread([child] {
        while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
    }).detach();
    return DecoderConnection(std::move(ours));
}

bool DecoderConnection::send(const Request& request, const Descriptor& picture) {
    Request copy = request;
    Ancillary ancillary{};
    iovec packet{&copy, sizeof(copy)};
    msghdr message{};
    message.msg_iov = &packet;
    message.msg_iovlen = 1;
    message.msg_control = ancillary.room.data();
    message.msg_controllen = ancillary.room.size();
    ancillary.header.cmsg_level = SOL_SOCKET;
    ancillary.header.cmsg_type = SCM_RIGHTS;
    ancillary.header.cmsg_len = CMSG_LEN(sizeof(int));
    const int file = picture.number();
    std::memcpy(CMSG_DATA(&ancillary.header), &file, sizeof(file));
    return sendmsg(socket_.number(), &message, MSG_NOSIGNAL) == sizeof(copy);
}

bool DecoderConnection::isReady() {
    if (!ready_) {
        const auto answer = receive(startTime);
        ready_ = answer && answer->reply.status == Status::ready;
    }
    return ready_;
}

std::optional<DecoderConnection::Answer>
DecoderConnection::receive(std::chrono::milliseconds timeout) {
    Answer answer{};
    Ancillary ancillary{};
    iovec packet{&answer.reply, sizeof(answer.reply)};
    msghdr message{};
    message.msg_iov = &packet;
    message.msg_iovlen = 1;
    message.msg_control = ancillary.room.data();
    message.msg_controllen = ancillary.room.size();
    if (!waitFor(socket_, timeout)) {
        return std::nullopt;
    }
    const ssize_t size = recvmsg(socket_.number(), &message, MSG_CMSG_CLOEXEC | MSG_DONTWAIT);
    const Descriptor memory = size > 0 ? descriptorIn(message) : Descriptor();
    if (size != sizeof(answer.reply) || (message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0) {
        return std::nullopt;
    }
    if (answer.reply.bytes == 0) {
        return answer;
    }
    auto bytes = contents(memory, answer.reply.bytes);
    if (!bytes) {
        return std::nullopt;
    }
    answer.contents = std::move(*bytes);
    return answer;
}

Descriptor sealedMemory(const QByteArray& bytes) {
    Descriptor memory(memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    const bool whole = memory && write(memory.number(), bytes.constData(),
                                       static_cast<size_t>(bytes.size())) == bytes.size();
    return whole && fcntl(memory.number(), F_ADD_SEALS, allSeals) == 0 ? std::move(memory)
                                                                       : Descriptor();
}

} // namespace ravelo
