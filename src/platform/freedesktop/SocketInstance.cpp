#include "platform/freedesktop/SocketInstance.h"

#include "base/Files.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTime = 5000; // Milliseconds.

// One session is one display; a file name must not hold what a display name may.
QString socketPath() {
    const QByteArray display = QCryptographicHash::hash(
        qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY"), QCryptographicHash::Sha1);
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
        makePrivateFolder(folder);
    }
    return folder + u"/ravelo-"_s + QString::fromLatin1(display.toHex().left(12));
}

} // namespace

SocketInstance::SocketInstance() : lock_(socketPath() + u".lock"_s) {
    lock_.setStaleLockTime(0); // Held for as long as its process lives, however long that is.
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] { accept(); });
}

std::unique_ptr<SingleInstance> SocketInstance::claim() {
    std::unique_ptr<SocketInstance> instance(new SocketInstance);
    if (!instance->lock_.tryLock()) {
        return nullptr;
    }
    QLocalServer::removeServer(socketPath()); // Left by one that was killed.
    instance->server_.listen(socketPath());
    return instance;
}

bool SocketInstance::send(const QString& action) {
    QLockFile lock(socketPath() + u".lock"_s);
    lock.setStaleLockTime(0);
    if (lock.tryLock()) {
        return false;
    }
    // The one that holds the lock may not be listening yet.
    for (int attempt = 0; attempt < 20; ++attempt) {
        QLocalSocket socket;
        socket.connectToServer(socketPath());
        if (socket.waitForConnected(answerTime)) {
            socket.write(action.toUtf8() + '\n');
            return socket.waitForReadyRead(answerTime);
        }
        QThread::msleep(50);
    }
    return false;
}

void SocketInstance::accept() {
    while (QLocalSocket* const socket = server_.nextPendingConnection()) {
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto answer = [this, socket] {
            if (!socket->canReadLine()) {
                return;
            }
            const QString action = QString::fromUtf8(socket->readLine()).trimmed();
            socket->write("ok\n");
            socket->flush();
            if (onAction) {
                onAction(action);
            }
        };
        QObject::connect(socket, &QLocalSocket::readyRead, socket, answer);
        answer();
    }
}

} // namespace ravelo
