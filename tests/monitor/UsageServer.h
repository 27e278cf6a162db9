#pragma once

#include <QByteArrayList>
#include <QSslConfiguration>
#include <QSslServer>
#include <QTemporaryDir>
#include <QUrl>

namespace ravelo {

/// A server on this machine that speaks TLS, with a certificate for "localhost" by an authority of
/// its own. Gives each request the same answer.
class UsageServer {
public:
    UsageServer();

    UsageServer(const UsageServer&) = delete;
    UsageServer& operator=(const UsageServer&) = delete;

    /// What is sent word by word, before the connection ends; with nothing it stays open.
    QByteArray answer;

    /// An answer as in RFC 9112.
    static QByteArray http(const QByteArray& status, const QByteArray& body,
                           const QByteArray& header = {});

    [[nodiscard]] QUrl url(const QString& host) const;

    /// Trusts the authority and no other.
    [[nodiscard]] QSslConfiguration trust() const;

    /// The heads of the requests so far.
    [[nodiscard]] const QByteArrayList& requests() const { return requests_; }

private:
    void run(const QStringList& openssl) const;
    void serve(QTcpSocket* socket);

    QTemporaryDir folder_;
    QSslServer server_;
    QByteArrayList requests_;
};

} // namespace ravelo
