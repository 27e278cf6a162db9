#include "platform/gnome/Channel.h"

#include "base/Files.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t maxGuests = 16;
constexpr int maxDescriptorsAtOnce = 16;
constexpr qsizetype maxOutgoing = 32 << 20; ///< A text, escaped.
constexpr int busTimeout = 2000;            ///< Milliseconds.

Result<Descriptor> listeningSocket(const QString& path) {
    const QString folder = QFileInfo(path).path();
    makePrivateFolder(folder);
    if (!isPrivateFolder(QFile::encodeName(folder))) {
        return failure(u"not a folder for this user alone: "_s + folder);
    }
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.size() >= qsizetype(sizeof address.sun_path)) {
        return failure(u"name too long: "_s + path);
    }
    std::copy(name.begin(), name.end(), address.sun_path);
    ::unlink(name.constData()); // Of one that was killed: the session has one Ravelo.
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket ||
        ::bind(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(socket.number(), int(maxGuests)) != 0) {
        return failure(
            u"cannot listen at %1: %2"_s.arg(path, QString::fromLocal8Bit(std::strerror(errno))));
    }
    return socket;
}

/// The process at the other end, if it is this user's.
std::optional<qint64> peerOf(const Descriptor& socket) {
    ucred peer = {};
    socklen_t size = sizeof peer;
    if (::getsockopt(socket.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 ||
        peer.uid != ::geteuid()) {
        return std::nullopt;
    }
    return peer.pid;
}

struct Received {
    qsizetype size = 0; ///< Of the bytes; 0 at the end, negative if there is nothing yet.
    std::vector<Descriptor> descriptors = {};
};

Received receiveFrom(const Descriptor& socket, char* buffer, std::size_t size) {
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int) * maxDescriptorsAtOnce)];
    iovec part{buffer, size};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    Received received;
    received.size = ::recvmsg(socket.number(), &message, MSG_CMSG_CLOEXEC | MSG_DONTWAIT);
    if (received.size < 0) {
        received.size = errno == EAGAIN || errno == EINTR ? -1 : 0;
        return received;
    }
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header != nullptr;
         header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) {
            continue;
        }
        const std::size_t count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(header) + i * sizeof(int), sizeof number);
            received.descriptors.emplace_back(number);
        }
    }
    return received;
}

/// The first line of a connection, and no byte more; empty if it has not come yet, nothing if it
/// never will.
std::optional<QByteArray> firstLine(const Descriptor& socket) {
    QByteArray peeked(maxLine, Qt::Uninitialized);
    const auto size =
        ::recv(socket.number(), peeked.data(), std::size_t(peeked.size()), MSG_PEEK | MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) {
        return QByteArray();
    }
    const qsizetype end = size <= 0 ? -1 : QByteArrayView(peeked).first(size).indexOf('\n');
    if (end < 0) {
        return size <= 0 || size == peeked.size() ? std::nullopt : std::optional(QByteArray());
    }
    if (::recv(socket.number(), peeked.data(), std::size_t(end + 1), 0) != end + 1) {
        return std::nullopt;
    }
    return peeked.first(end);
}

} // namespace

Result<std::unique_ptr<Channel>> Channel::listen(const QString& path, QDBusConnection bus,
                                                 QByteArray hello) {
    return listeningSocket(path).map([&](Descriptor socket) {
        return std::unique_ptr<Channel>(
            new Channel(std::move(socket), path, std::move(bus), std::move(hello)));
    });
}

Channel::Channel(Descriptor socket, QString path, QDBusConnection bus, QByteArray hello)
    : listening_(std::move(socket)),
      path_(std::move(path)),
      bus_(std::move(bus)),
      hello_(std::move(hello)),
      incoming_(std::make_unique<QSocketNotifier>(listening_.number(), QSocketNotifier::Read)) {
    connect(incoming_.get(), &QSocketNotifier::activated, this, [this] { accept(); });
}

Channel::~Channel() {
    ::unlink(QFile::encodeName(path_).constData());
}

void Channel::accept() {
    Descriptor socket(
        ::accept4(listening_.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    const auto pid = socket ? peerOf(socket) : std::nullopt;
    if (!pid || guests_.size() >= maxGuests) {
        return;
    }
    guests_.push_back({std::move(socket), *pid});
    // Asked each time: the shell's name has another owner once the shell is restarted.
    auto call =
        QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                       u"org.freedesktop.DBus"_s, u"GetConnectionUnixProcessID"_s);
    call << u"org.gnome.Shell"_s;
    auto* const watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call, busTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, pid = *pid] {
        verified(pid, watcher->reply());
        watcher->deleteLater();
    });
}

void Channel::verified(qint64 pid, const QDBusMessage& answer) {
    const auto guest = std::ranges::find_if(
        guests_, [pid](const Guest& one) { return one.pid == pid && !one.trusted; });
    if (guest == guests_.end()) {
        return;
    }
    if (answer.type() != QDBusMessage::ReplyMessage ||
        answer.arguments().value(0).toUInt() != pid) {
        guests_.erase(guest);
        return;
    }
    guest->trusted = true;
    guest->readable =
        std::make_unique<QSocketNotifier>(guest->socket.number(), QSocketNotifier::Read);
    connect(guest->readable.get(), &QSocketNotifier::activated, this,
            [this, guest] { hearGuest(guest); });
}

/// The extension itself, or a connection that it pours contents into.
void Channel::hearGuest(std::list<Guest>::iterator guest) {
    const auto line = firstLine(guest->socket);
    if (line && line->isEmpty()) {
        return;
    }
    Descriptor socket = std::move(guest->socket);
    guest->readable->setEnabled(false);
    guest->readable.release()->deleteLater(); // It is calling us.
    guests_.erase(guest);
    auto report = line ? parseReport(*line) : std::nullopt;
    if (!report) {
        return;
    }
    if (const auto* greeting = std::get_if<Hello>(&*report)) {
        if (greeting->version == protocolVersion) {
            adopt(std::move(socket));
        }
    } else if (const auto* given = std::get_if<Given>(&*report);
               given != nullptr && given->how == Given::How::poured && up_) {
        Delivery delivery{std::move(*report), std::move(socket)};
        deliveries_.notify(&delivery);
    }
}

void Channel::adopt(Descriptor socket) {
    close();
    socket_ = std::move(socket);
    inbox_ = Inbox();
    readable_ = std::make_unique<QSocketNotifier>(socket_.number(), QSocketNotifier::Read);
    connect(readable_.get(), &QSocketNotifier::activated, this, [this] { receive(); });
    writable_ = std::make_unique<QSocketNotifier>(socket_.number(), QSocketNotifier::Write);
    writable_->setEnabled(false);
    connect(writable_.get(), &QSocketNotifier::activated, this, [this] { flush(); });
    outgoing_.clear();
    up_ = true;
    send(hello_);
    upChanges_.notify();
}

void Channel::receive() {
    if (!up_) {
        return;
    }
    char buffer[16 << 10];
    Received received = receiveFrom(socket_, buffer, sizeof buffer);
    if (received.size < 0) {
        return;
    }
    inbox_.put({buffer, received.size}, std::move(received.descriptors));
    while (up_) {
        auto delivery = inbox_.take();
        if (!delivery) {
            break;
        }
        deliveries_.notify(&*delivery);
    }
    if (received.size == 0 || inbox_.isBroken()) {
        close();
    }
}

void Channel::send(const QByteArray& line) {
    if (up_) {
        outgoing_ += line;
        flush();
    }
}

void Channel::flush() {
    const auto sent = ::send(socket_.number(), outgoing_.constData(), std::size_t(outgoing_.size()),
                             MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent < 0 && errno != EAGAIN && errno != EINTR) {
        close();
        return;
    }
    outgoing_.remove(0, std::max<qsizetype>(sent, 0));
    if (outgoing_.size() > maxOutgoing) {
        close();
    } else {
        writable_->setEnabled(!outgoing_.isEmpty());
    }
}

void Channel::close() {
    if (!up_) {
        return;
    }
    up_ = false;
    for (auto* const notifier : {&readable_, &writable_}) {
        (*notifier)->setEnabled(false);
        notifier->release()->deleteLater(); // It may be calling us.
    }
    socket_ = Descriptor();
    upChanges_.notify();
}

} // namespace ravelo::gnome
