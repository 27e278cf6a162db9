#pragma once

#include <QByteArrayList>
#include <QSslServer>
#include <QTemporaryDir>
#include <QUrl>

#include <array>

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

    /// The file with the authority's certificate.
    [[nodiscard]] QString authority() const {
        return folder_.filePath(QStringLiteral("authority.pem"));
    }

    [[nodiscard]] quint16 port() const { return server_.serverPort(); }

    /// The heads of the requests so far.
    [[nodiscard]] const QByteArrayList& requests() const { return requests_; }

private:
    void run(const QString& openssl) const;
    void serve(QTcpSocket* socket);

    QTemporaryDir folder_;
    QSslServer server_;
    QByteArrayList requests_;
};

/// A proxy that handles CONNECT.
class Proxy {
public:
    Proxy();

    [[nodiscard]] QString url() const {
        return QStringLiteral("http://127.0.0.1:%1").arg(server_.serverPort());
    }

    QByteArray received; ///< From clients, in the clear and encrypted.

private:
    void serve(QTcpSocket* client);

    QTcpServer server_;
};

/// An address of this machine where connections are neither accepted nor refused.
class SilentAddress {
public:
    static constexpr const char* address = "127.0.0.2";

    explicit SilentAddress(quint16 port);
    ~SilentAddress();

    SilentAddress(const SilentAddress&) = delete;
    SilentAddress& operator=(const SilentAddress&) = delete;

private:
    std::array<int, 3> sockets_ = {}; ///< One that listens, and two that fill its queue.
};

} // namespace ravelo
