#pragma once

#include "platform/HttpsClient.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QStringList>

namespace ravelo {

/// Each request by a run of curl(1), which Debian keeps up to date: it knows the proxies of the
/// environment, tries every address of a host and checks the certificate. No TLS library is loaded
/// into this process, and all other copies of the token are gone when curl exits.
class CurlClient final : public QObject, public HttpsClient {
    Q_OBJECT

public:
    /// `userAgent` as in RFC 9110. curl gets only the proxies of `environment`.
    /// `options` are further arguments of curl.
    CurlClient(const QByteArray& userAgent, const QProcessEnvironment& environment,
               QStringList options = {});

    [[nodiscard]] Handle get(const HttpsRequest& request,
                             std::function<void(std::optional<HttpsAnswer>)> done) override;

private:
    QStringList arguments_; ///< Of every request.
    QProcessEnvironment environment_;
};

} // namespace ravelo
