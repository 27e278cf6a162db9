#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>
#include <optional>
#include <utility>

namespace ravelo {

struct HttpsRequest {
    QUrl url; ///< Of the scheme "https"; others are not asked for.
    QList<std::pair<QByteArray, QByteArray>> headers;
    Seconds timeOut;    ///< For all of it, to the last byte of the answer.
    qint64 largest = 0; ///< Bytes of an answer; one with more counts as none.
};

struct HttpsAnswer {
    int status = 0; ///< As in RFC 9110, also one that redirects: no redirection is followed.
    QByteArray body;
    QByteArray retryAfter; ///< The header of that name; empty if there is none.
};

/// Asks servers on the Internet, over TLS with certificates that the system trusts. Main thread.
class HttpsClient {
public:
    virtual ~HttpsClient() = default;

    /// GET. Calls `done` once, later, with nothing where no answer came within the bounds of the
    /// request; not where the handle was dropped. Why it failed is not told, so that nothing of a
    /// request can get into a log.
    [[nodiscard]] virtual Handle get(const HttpsRequest& request,
                                     std::function<void(std::optional<HttpsAnswer>)> done) = 0;
};

} // namespace ravelo
