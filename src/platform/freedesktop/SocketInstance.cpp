#include "platform/freedesktop/SocketInstance.h"

#include "base/Files.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestRequest = 64 << 20; // Bytes, of what has no end yet.

bool isPrivateFolder(const QByteArray& path) {
    struct stat info = {};
    return ::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::geteuid() && (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

QString socketFolder() {
    if (const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR"); isPrivateFolder(runtime)) {
        return QFile::decodeName(runtime);
    }
    // One of our own: others share the one above it.
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/ravelo"_s;
    makePrivateFolder(folder);
    return folder;
}

// One session is one display; a file name must not hold what a display name may.
QString socketPath() {
    const QByteArray display = QCryptographicHash::hash(
        qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY"), QCryptographicHash::Sha1);
    return socketFolder() + u"/ravelo-"_s + QString::fromLatin1(display.toHex().left(12));
}

QByteArray line(const QJsonDocument& json) {
    return json.toJson(QJsonDocument::Compact) + '\n';
}

QByteArray written(const QStringList& request) {
    return line(QJsonDocument(QJsonArray::fromStringList(request)));
}

QByteArray written(const Answer& answer) {
    return line(QJsonDocument(QJsonObject{
        {u"status"_s, answer.status},
        {u"output"_s, QString::fromLatin1(answer.output.toBase64())}, // May be no text.
        {u"errors"_s, answer.errors},
    }));
}

std::optional<QStringList> toRequest(const QByteArray& line) {
    const QJsonDocument json = QJsonDocument::fromJson(line);
    return json.isArray() ? std::optional(json.toVariant().toStringList()) : std::nullopt;
}

std::optional<Answer> toAnswer(const QByteArray& line) {
    const QJsonDocument json = QJsonDocument::fromJson(line);
    if (!json.isObject()) {
        return std::nullopt;
    }
    return Answer{json[u"status"].toInt(1),
                  QByteArray::fromBase64(json[u"output"].toString().toLatin1()),
                  json[u"errors"].toString()};
}

int left(const QDeadlineTimer& deadline) {
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

SocketInstance::SocketInstance() : lock_(socketPath() + u".lock"_s) {
    lock_.setStaleLockTime(0); // Held for as long as its process lives, however long that is.
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { accept(); });
}

std::unique_ptr<SocketInstance> SocketInstance::claim() {
    std::unique_ptr<SocketInstance> instance(new SocketInstance);
    if (!instance->lock_.tryLock(300)) { // Who only asks holds it for a moment.
        return nullptr;
    }
    QLocalServer::removeServer(socketPath()); // Left by one that was killed.
    instance->server_.listen(socketPath());
    return instance;
}

std::optional<Answer> SocketInstance::ask(const QStringList& request,
                                          std::chrono::milliseconds patience) {
    QLockFile lock(socketPath() + u".lock"_s);
    lock.setStaleLockTime(0);
    if (lock.tryLock()) {
        return std::nullopt;
    }
    const QDeadlineTimer deadline(patience);
    QLocalSocket socket;
    // The one that holds the lock may not be listening yet.
    for (socket.connectToServer(socketPath()); !socket.waitForConnected(left(deadline));
         socket.connectToServer(socketPath())) {
        if (deadline.hasExpired()) {
            return silence();
        }
        socket.abort();
        QThread::msleep(50);
    }
    socket.write(written(request));
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(left(deadline))) {
            return silence();
        }
    }
    return toAnswer(socket.readLine()).value_or(silence());
}

void SocketInstance::accept() {
    while (QLocalSocket* const socket = server_.nextPendingConnection()) {
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QLocalSocket::readyRead, socket,
                         [this, socket] { serve(*socket); });
        serve(*socket);
    }
}

void SocketInstance::serve(QLocalSocket& socket) const {
    if (socket.canReadLine()) {
        const auto request = toRequest(socket.readLine());
        socket.write(written(request ? answer(*request) : Answer{2, {}, u"no request"_s}));
        socket.flush();
    } else if (socket.bytesAvailable() > longestRequest) {
        socket.abort();
    }
}

} // namespace ravelo
