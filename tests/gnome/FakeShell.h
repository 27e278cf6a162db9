#pragma once

#include "base/Descriptor.h"
#include "platform/gnome/Channel.h"
#include "support/Eventually.h"

#include <QDBusConnection>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ravelo::gnome {

/// A connected pair of ends of a pipe.
struct Pipe {
    Descriptor out; ///< To read from.
    Descriptor in;
};

inline Pipe makePipe() {
    int ends[2] = {-1, -1};
    EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

/// The other side of the channel, as the extension speaks it.
class FakeShell {
public:
    explicit FakeShell(const QString& path) : path_(path) {}

    /// Without a greeting.
    [[nodiscard]] static Descriptor connectTo(const QString& path) {
        const QByteArray name = QFile::encodeName(path);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, name.constData(), std::size_t(name.size()));
        Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        EXPECT_EQ(
            ::connect(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
        return socket;
    }

    void connect(int version = protocolVersion) {
        socket_ = connectTo(path_);
        readable_ = std::make_unique<QSocketNotifier>(socket_.number(), QSocketNotifier::Read);
        QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(),
                         [this] { hear(); });
        send(R"({"is":"hello","version":)" + QByteArray::number(version) + "}");
    }

    void hangUp() {
        readable_.reset();
        socket_ = Descriptor();
    }

    void send(const QByteArray& message) { write(socket_, message + '\n'); }

    /// The answer to the last question about `of`, by a descriptor.
    void give(const QJsonObject& want, const Descriptor& source) {
        char nul = 0;
        iovec part{&nul, 1};
        alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
        msghdr message = {};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        message.msg_control = control;
        message.msg_controllen = sizeof control;
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof(int));
        const int number = source.number();
        std::memcpy(CMSG_DATA(header), &number, sizeof number);
        EXPECT_EQ(::sendmsg(socket_.number(), &message, MSG_NOSIGNAL), 1);
        send(answer("data", want));
    }

    /// By a connection of its own, which the caller writes to.
    [[nodiscard]] Descriptor pour(const QJsonObject& want) {
        Descriptor socket = connectTo(path_);
        write(socket, answer("pour", want) + '\n');
        return socket;
    }

    void refuse(const QJsonObject& want) { send(answer("none", want)); }

    static void write(const Descriptor& to, const QByteArray& bytes) {
        EXPECT_EQ(::write(to.number(), bytes.constData(), std::size_t(bytes.size())), bytes.size());
    }

    [[nodiscard]] QList<QJsonObject> heard(const QString& is) const {
        QList<QJsonObject> found;
        for (const QJsonObject& message : messages_) {
            if (message[u"is"].toString() == is) {
                found.append(message);
            }
        }
        return found;
    }

    [[nodiscard]] bool isDropped() const { return dropped_; }

    /// Called for each question about contents.
    std::function<void(const QJsonObject& want)> onWant;

    /// What it says about the keyboard when it is asked: all but "is" and "serial".
    QJsonObject keyboard{{QStringLiteral("focused"), false},
                         {QStringLiteral("modifiers"), false},
                         {QStringLiteral("layout"), QString()},
                         {QStringLiteral("names"), QJsonArray()}};
    bool answersAboutKeyboard = true;

private:
    [[nodiscard]] static QByteArray answer(const char* is, QJsonObject want) {
        want[QStringLiteral("is")] = QLatin1StringView(is);
        return QJsonDocument(want).toJson(QJsonDocument::Compact);
    }

    void hear() {
        QByteArray part(64 << 10, Qt::Uninitialized);
        const auto size =
            ::recv(socket_.number(), part.data(), std::size_t(part.size()), MSG_DONTWAIT);
        if (size <= 0) {
            dropped_ = true;
            readable_->setEnabled(false);
            return;
        }
        bytes_.append(part.constData(), size);
        for (qsizetype end = bytes_.indexOf('\n'); end >= 0; end = bytes_.indexOf('\n')) {
            const auto message = QJsonDocument::fromJson(bytes_.first(end)).object();
            bytes_.remove(0, end + 1);
            messages_.append(message);
            if (message[u"is"].toString() == QLatin1StringView("want") && onWant) {
                onWant(message);
            } else if (message[u"is"].toString() == QLatin1StringView("keyboard") &&
                       answersAboutKeyboard) {
                QJsonObject report = keyboard;
                report[QStringLiteral("serial")] = message[u"serial"];
                send(answer("keyboard", report));
            }
        }
    }

    QString path_;
    Descriptor socket_;
    std::unique_ptr<QSocketNotifier> readable_;
    QByteArray bytes_;
    QList<QJsonObject> messages_;
    bool dropped_ = false;
};

} // namespace ravelo::gnome
