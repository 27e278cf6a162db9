#include "UsageServer.h"

#include "base/Files.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

#include <memory>
#include <tuple>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

UsageServer::UsageServer() {
    const QString newCertificate =
        u"req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -keyout %1.key -out %1.pem "
        "-subj /CN=%1"_s;
    run(newCertificate.arg(u"authority"_s));
    run(newCertificate.arg(u"server"_s) +
        u" -addext subjectAltName=DNS:localhost -addext basicConstraints=critical,CA:FALSE "
        "-CA authority.pem -CAkey authority.key"_s);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate::fromPath(folder_.filePath(u"server.pem"_s)).value(0));
    tls.setPrivateKey(
        QSslKey(readFile(folder_.filePath(u"server.key"_s)).value_or(QByteArray()), QSsl::Ec));
    server_.setSslConfiguration(tls);
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_,
                     [this] { serve(server_.nextPendingConnection()); });
}

void UsageServer::run(const QString& openssl) const {
    QProcess process;
    process.setWorkingDirectory(folder_.path());
    process.start(u"openssl"_s, openssl.split(u' '));
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
        << process.readAllStandardError().toStdString();
}

void UsageServer::serve(QTcpSocket* socket) {
    QObject::connect(socket, &QTcpSocket::readyRead, socket,
                     [this, socket, head = std::make_shared<QByteArray>()] {
                         *head += socket->readAll();
                         if (head->endsWith("\r\n\r\n")) {
                             requests_.append(*head);
                             socket->write(answer);
                             if (!answer.isEmpty()) {
                                 socket->disconnectFromHost();
                             }
                         }
                     });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
}

QByteArray UsageServer::http(const QByteArray& status, const QByteArray& body,
                             const QByteArray& header) {
    return "HTTP/1.1 " + status + "\r\n" + header +
           "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QUrl UsageServer::url(const QString& host) const {
    return {u"https://%1:%2/api/oauth/usage"_s.arg(host).arg(server_.serverPort())};
}

Proxy::Proxy() {
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_,
                     [this] { serve(server_.nextPendingConnection()); });
}

void Proxy::serve(QTcpSocket* client) {
    auto* const target = new QTcpSocket(client);
    QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, target] {
        const QByteArray bytes = client->readAll();
        received += bytes;
        if (target->state() == QTcpSocket::UnconnectedState) {
            const QUrl url(u"//"_s + QString::fromLatin1(bytes.split(' ').value(1)));
            target->connectToHost(QHostAddress::LocalHost, static_cast<quint16>(url.port()));
            client->write("HTTP/1.1 200 OK\r\n\r\n");
        } else {
            target->write(bytes);
        }
    });
    QObject::connect(target, &QTcpSocket::readyRead, client,
                     [client, target] { client->write(target->readAll()); });
    QObject::connect(target, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(client, &QTcpSocket::disconnected, client, &QTcpSocket::deleteLater);
}

SilentAddress::SilentAddress(quint16 port) {
    sockaddr_in place = {};
    place.sin_family = AF_INET;
    place.sin_port = htons(port);
    inet_pton(AF_INET, address, &place.sin_addr);
    auto* const at = reinterpret_cast<sockaddr*>(&place);
    for (int& one : sockets_) {
        one = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    }
    EXPECT_EQ(bind(sockets_[0], at, sizeof place), 0);
    EXPECT_EQ(listen(sockets_[0], 0), 0);
    for (const int filling : {sockets_[1], sockets_[2]}) {
        std::ignore = connect(filling, at, sizeof place); // Goes on by itself.
    }
}

SilentAddress::~SilentAddress() {
    for (const int one : sockets_) {
        close(one);
    }
}

} // namespace ravelo
