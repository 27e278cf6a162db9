#pragma once

#include "platform/DetachedJobs.h"
#include "platform/HttpsClient.h"

#include <QHostAddress>
#include <QObject>
#include <QSslConfiguration>

#include <memory>
#include <optional>
#include <vector>

class QThread;

namespace ravelo {

/// Each request on a thread of its own that lives as long as the request: the first use of TLS
/// loads libraries and certificates, which the main thread must not wait for, and between requests
/// nothing stays behind. HTTP/1.1, no cookies, no cache, no compression, no proxy.
class HttpsThread final : public QObject, public HttpsClient {
    Q_OBJECT

public:
    /// `userAgent` as in RFC 9110. Without `tls` the system's own trust decides. `jobs` outlives
    /// this and looks up the addresses of hosts: a name server that does not answer would keep
    /// QHostInfo, and with it the end of the program, for ten seconds.
    HttpsThread(DetachedJobs& jobs, QByteArray userAgent,
                std::optional<QSslConfiguration> tls = {});

    /// Breaks off what is on its way.
    ~HttpsThread() override;

    [[nodiscard]] Handle get(const HttpsRequest& request,
                             std::function<void(std::optional<HttpsAnswer>)> done) override;

private:
    struct Exchange;

    void start(const std::shared_ptr<Exchange>& exchange, const QHostAddress& address);

    DetachedJobs& jobs_;
    QByteArray userAgent_;
    std::optional<QSslConfiguration> tls_;
    std::vector<std::shared_ptr<Exchange>> running_; ///< Those that have a thread.
};

} // namespace ravelo
