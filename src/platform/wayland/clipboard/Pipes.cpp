#include "platform/wayland/clipboard/Pipes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace ravelo::wayland {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds readTime(1500);
constexpr std::chrono::seconds writeTime(5);

void setNonBlocking(const Descriptor& descriptor) {
    fcntl(descriptor.number(), F_SETFL, fcntl(descriptor.number(), F_GETFL) | O_NONBLOCK);
}

} // namespace

Pipes::Key Pipes::read(Descriptor from, qsizetype limit, std::function<void(PipeResult)> done) {
    const Key key = nextKey_++;
    reads_.emplace(key, Read{std::move(from), limit, std::move(done), {}, Clock::now() + readTime});
    return key;
}

void Pipes::write(Descriptor to, QByteArray bytes) {
    setNonBlocking(to);
    writes_.push_back({std::move(to), std::move(bytes), 0, Clock::now() + writeTime});
    if (isDone(writes_.back())) { // As most are: a pipe holds 64 KiB.
        writes_.pop_back();
    }
}

void Pipes::appendTo(std::vector<pollfd>& waits) const {
    for (const auto& [key, read] : reads_) {
        waits.push_back({read.from.number(), POLLIN, 0});
    }
    for (const Write& write : writes_) {
        waits.push_back({write.to.number(), POLLOUT, 0});
    }
}

std::optional<TimePoint> Pipes::deadline() const {
    std::optional<TimePoint> soonest;
    const auto consider = [&](TimePoint time) {
        soonest = soonest ? std::min(*soonest, time) : time;
    };
    for (const auto& [key, read] : reads_) {
        consider(read.deadline);
    }
    for (const Write& write : writes_) {
        consider(write.deadline);
    }
    return soonest;
}

void Pipes::serve() {
    std::vector<std::pair<Key, PipeResult>> results;
    for (auto& [key, read] : reads_) {
        if (auto result = progress(read)) {
            results.emplace_back(key, std::move(*result));
        }
    }
    for (auto& [key, result] : results) {
        if (const auto read = reads_.extract(key)) { // Otherwise an earlier one cancelled it.
            read.mapped().done(std::move(result));
        }
    }
    writes_.remove_if(isDone);
}

std::optional<PipeResult> Pipes::progress(Read& read) {
    std::array<char, 65536> piece;
    for (;;) {
        const ssize_t size = ::read(read.from.number(), piece.data(), piece.size());
        if (size == 0) {
            return std::move(read.bytes);
        }
        if (size < 0 && errno == EINTR) {
            continue;
        }
        if (size < 0 && errno != EAGAIN) {
            return tl::unexpected(PipeFailure{PipeFailure::broken, read.bytes.size()});
        }
        if (size < 0) {
            break;
        }
        read.bytes.append(piece.data(), size);
        read.deadline = Clock::now() + readTime;
        if (read.bytes.size() > read.limit) {
            return tl::unexpected(PipeFailure{PipeFailure::tooLarge, read.bytes.size()});
        }
    }
    return Clock::now() < read.deadline
               ? std::nullopt
               : std::optional<PipeResult>(
                     tl::unexpected(PipeFailure{PipeFailure::tooSlow, read.bytes.size()}));
}

bool Pipes::isDone(Write& write) {
    while (write.written < write.bytes.size()) {
        const ssize_t size = ::write(write.to.number(), write.bytes.constData() + write.written,
                                     static_cast<size_t>(write.bytes.size() - write.written));
        if (size > 0) {
            write.written += size;
            write.deadline = Clock::now() + writeTime;
        } else if (errno != EINTR) {
            return errno != EAGAIN || Clock::now() >= write.deadline;
        }
    }
    return true;
}

Pipe::Pipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) == 0) {
        readEnd = Descriptor(ends[0]);
        writeEnd = Descriptor(ends[1]);
        setNonBlocking(readEnd);
    }
}

} // namespace ravelo::wayland
