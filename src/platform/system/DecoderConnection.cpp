#include "platform/system/DecoderConnection.h"

#include "decode/Packets.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ravelo {

namespace {

using namespace decode;

constexpr std::chrono::milliseconds startTime(5000); ///< On a busy machine.
constexpr std::chrono::milliseconds restCheck(5000); ///< How often a resting process is checked.

/// Large pages for pictures halve the page faults and save a tenth of the time.
constexpr const char* memorySetting = "GLIBC_TUNABLES=glibc.malloc.hugetlb=1";

/// Without our environment, other descriptors or blocked signals. 0 if it could not be started.
pid_t spawn(const QByteArray& program, DecoderConnection::Formats formats, int socket) {
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
    const bool onlyPng = formats == DecoderConnection::Formats::png;
    std::array arguments{const_cast<char*>(program.constData()),
                         onlyPng ? const_cast<char*>(onlyPngOption) : nullptr,
                         static_cast<char*>(nullptr)};
    std::array environment{const_cast<char*>(memorySetting), static_cast<char*>(nullptr)};
    pid_t child = 0;
    if (posix_spawn(&child, program.constData(), &files, &attributes, arguments.data(),
                    environment.data()) != 0) {
        child = 0;
    }
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return child;
}

/// Nothing if the size differs or the memory is not sealed.
std::optional<QByteArray> contents(const Descriptor& memory, int64_t size) {
    struct stat info = {};
    if (size <= 0 || size > maxBytes || !memory || fstat(memory.number(), &info) != 0 ||
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

std::optional<DecoderConnection> DecoderConnection::start(const QByteArray& program,
                                                          Formats formats) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return std::nullopt;
    }
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    const pid_t child = spawn(program, formats, theirs.number());
    if (child == 0) {
        return std::nullopt;
    }
    const auto abandon = [child] {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        return std::nullopt;
    };
    // Opened before the child can be reaped, so the number cannot mean another process.
    Descriptor process(static_cast<int>(syscall(SYS_pidfd_open, child, 0)));
    Descriptor watched(fcntl(process.number(), F_DUPFD_CLOEXEC, 0));
    if (!watched) {
        return abandon();
    }
    DecoderConnection connection(std::move(ours), std::move(process));
    // It ends by itself at any time, so something must reap it: forking twice would take longer
    // than reading most pictures.
    try {
        std::thread([child, watched = std::move(watched), deadline = connection.deadline_] {
            reap(child, watched, *deadline);
        }).detach();
    } catch (const std::system_error&) { // No more threads.
        return abandon();
    }
    return connection;
}

void DecoderConnection::reap(int child, const Descriptor& process, const Deadline& deadline) {
    pollfd event{process.number(), POLLIN, 0};
    for (int ended = 0; ended == 0 || (ended < 0 && errno == EINTR);) {
        ended = poll(&event, 1, static_cast<int>(restCheck.count()));
        if (ended == 0 && Clock::now() > deadline.load()) {
            kill(child, SIGKILL);
        }
    }
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void DecoderConnection::rest(std::chrono::milliseconds max) {
    deadline_->store(Clock::now() + max);
}

DecoderConnection::~DecoderConnection() {
    if (process_) { // One that has been taken over would not end by itself.
        syscall(SYS_pidfd_send_signal, process_.number(), SIGKILL, nullptr, 0);
    }
}

bool DecoderConnection::send(const Request& request, const Descriptor& picture) {
    deadline_->store(Clock::time_point::max());
    return sendPacket(socket_.number(), &request, sizeof(request), picture);
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
    if (!waitFor(socket_, timeout)) {
        return std::nullopt;
    }
    const Received received =
        receivePacket(socket_.number(), &answer.reply, sizeof(answer.reply), MSG_DONTWAIT);
    if (!received.whole) {
        return std::nullopt;
    }
    if (answer.reply.bytes == 0 && !received.file) {
        return answer;
    }
    auto bytes = contents(received.file, answer.reply.bytes);
    if (!bytes) {
        return std::nullopt;
    }
    answer.contents = std::move(*bytes);
    return answer;
}

} // namespace ravelo
