#include "UsageServer.h"

#include "base/Files.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

#include <memory>

namespace ravelo {

using namespace Qt::StringLiterals;

UsageServer::UsageServer() {
    run({u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:P-256"_s,
         u"-nodes"_s, u"-subj"_s, u"/CN=authority"_s, u"-keyout"_s, u"authority.key"_s, u"-out"_s,
         u"authority.pem"_s});
    run({u"req"_s,
         u"-x509"_s,
         u"-newkey"_s,
         u"ec"_s,
         u"-pkeyopt"_s,
         u"ec_paramgen_curve:P-256"_s,
         u"-nodes"_s,
         u"-subj"_s,
         u"/CN=server"_s,
         u"-addext"_s,
         u"subjectAltName=DNS:localhost"_s,
         u"-addext"_s,
         u"basicConstraints=critical,CA:FALSE"_s,
         u"-CA"_s,
         u"authority.pem"_s,
         u"-CAkey"_s,
         u"authority.key"_s,
         u"-keyout"_s,
         u"server.key"_s,
         u"-out"_s,
         u"server.pem"_s});
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate::fromPath(folder_.filePath(u"server.pem"_s)).value(0));
    tls.setPrivateKey(
        QSslKey(readFile(folder_.filePath(u"server.key"_s)).value_or(QByteArray()), QSsl::Ec));
    server_.setSslConfiguration(tls);
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_,
                     [this] { serve(server_.nextPendingConnection()); });
}

void UsageServer::run(const QStringList& openssl) const {
    QProcess process;
    process.setWorkingDirectory(folder_.path());
    process.start(u"openssl"_s, openssl);
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

QSslConfiguration UsageServer::trust() const {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates(QSslCertificate::fromPath(folder_.filePath(u"authority.pem"_s)));
    return tls;
}

} // namespace ravelo
