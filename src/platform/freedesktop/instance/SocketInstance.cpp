#include "platform/freedesktop/instance/SocketInstance.h"

#include "base/Files.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QPointer>
#include <QStandardPaths>
#include <QThread>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxRequest = 64 << 20; // Bytes before the end of the line.

QString socketFolder() {
    if (const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR"); isPrivateFolder(runtime)) {
        return QFile::decodeName(runtime);
    }
    // A folder of our own, because others share its parent.
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/ravelo"_s;
    makePrivateFolder(folder);
    return folder;
}

// One instance per display, whose name may contain what a file name must not.
QString socketPath() {
    const QByteArray display = QCryptographicHash::hash(
        qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY"), QCryptographicHash::Sha1);
    return socketFolder() + u"/ravelo-"_s + QString::fromLatin1(display.toHex().left(12));
}

QByteArray line(const QJsonDocument& json) {
    return json.toJson(QJsonDocument::Compact) + '\n';
}

struct Request {
    QStringList words;
    QByteArray activationToken;
};

QByteArray written(const Request& request) {
    const QJsonArray words = QJsonArray::fromStringList(request.words);
    if (request.activationToken.isEmpty()) {
        return line(QJsonDocument(words));
    }
    return line(QJsonDocument(QJsonObject{
        {u"request"_s, words},
        {u"activation-token"_s, QString::fromUtf8(request.activationToken)},
    }));
}

QByteArray written(const Answer& answer) {
    return line(QJsonDocument(QJsonObject{
        {u"status"_s, answer.status},
        {u"output"_s, QString::fromLatin1(answer.output.toBase64())}, // May not be text.
        {u"errors"_s, answer.errors},
    }));
}

std::optional<Request> toRequest(const QByteArray& line) {
    const QJsonDocument json = QJsonDocument::fromJson(line);
    const QJsonValue words = json.isArray() ? QJsonValue(json.array()) : json[u"request"];
    if (!words.isArray()) {
        return std::nullopt;
    }
    return Request{words.toVariant().toStringList(), json[u"activation-token"].toString().toUtf8()};
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
    lock_.setStaleLockTime(0); // Valid as long as its process lives.
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { accept(); });
}

std::unique_ptr<SocketInstance> SocketInstance::claim() {
    std::unique_ptr<SocketInstance> instance(new SocketInstance);
    if (!instance->lock_.tryLock(300)) { // `ask` holds it for a moment.
        return nullptr;
    }
    QLocalServer::removeServer(socketPath()); // Left by a killed instance.
    if (!instance->server_.listen(socketPath())) {
        qWarning("Ravelo gets no commands: %s", qUtf8Printable(instance->server_.errorString()));
    }
    return instance;
}

std::optional<Answer> SocketInstance::ask(const QStringList& request,
                                          const QByteArray& activationToken,
                                          std::chrono::milliseconds timeout) {
    QLockFile lock(socketPath() + u".lock"_s);
    lock.setStaleLockTime(0);
    if (lock.tryLock()) {
        return std::nullopt;
    }
    const QDeadlineTimer deadline(timeout);
    QLocalSocket socket;
    // The instance may not listen yet.
    for (socket.connectToServer(socketPath()); !socket.waitForConnected(left(deadline));
         socket.connectToServer(socketPath())) {
        if (deadline.hasExpired()) {
            return silence();
        }
        socket.abort();
        QThread::msleep(50);
    }
    socket.write(written(Request{request, activationToken}));
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
        const auto reply = [socket = QPointer(&socket)](const Answer& answer) {
            if (socket) {
                socket->write(written(answer));
                socket->flush();
            }
        };
        request ? answer(request->words, request->activationToken, reply)
                : reply({2, {}, u"no request"_s});
    } else if (socket.bytesAvailable() > maxRequest) {
        socket.abort();
    }
}

} // namespace ravelo
