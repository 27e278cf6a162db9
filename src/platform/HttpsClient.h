#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"
#include "base/Secret.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>
#include <optional>
#include <utility>

namespace ravelo {

struct HttpsRequest {
    QUrl url; ///< Must begin with "https:"; others get no answer.
    QList<std::pair<QByteArray, QByteArray>> headers;
    Secret authorization; ///< The value of the header of that name; empty if there is none.
    Seconds timeout;      ///< For all of it, to the last byte of the answer.
    qint64 maxBody = 0;   ///< Bytes; a longer answer counts as none.
};

struct HttpsAnswer {
    int status = 0; ///< As in RFC 9110. Redirections are not followed.
    QByteArray body;
    QByteArray retryAfter; ///< The header of that name; empty if there is none.
};

/// Sends requests over TLS, to servers with a certificate that the system trusts. Main thread.
class HttpsClient {
public:
    virtual ~HttpsClient() = default;

    /// GET. Calls `done` once, later, with nothing if there was no answer within the limits of the
    /// request; never after the handle was dropped. Reports no reason for a failure, so that
    /// nothing of a request can get into a log.
    [[nodiscard]] virtual Handle get(const HttpsRequest& request,
                                     std::function<void(std::optional<HttpsAnswer>)> done) = 0;
};

} // namespace ravelo
