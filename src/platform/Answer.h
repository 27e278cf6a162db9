#pragma once

#include <QByteArray>
#include <QString>

namespace ravelo {

/// The running program's answer to a request from another instance, which prints it and exits with
/// its status.
struct Answer {
    int status = 0;    ///< The exit status: 0 done, 1 failed, 2 bad request.
    QByteArray output; ///< For standard output, as it is.
    QString errors;    ///< For standard error, one per line; no line break at the end.

    friend bool operator==(const Answer&, const Answer&) = default;
};

} // namespace ravelo
