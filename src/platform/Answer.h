#pragma once

#include <QByteArray>
#include <QString>

namespace ravelo {

/// What the running program answers to a request of another start of it, for that one to print and
/// to end with.
struct Answer {
    int status = 0;    ///< The exit status: 0 done, 1 not done, 2 asked wrongly.
    QByteArray output; ///< For standard output, as it is.
    QString errors;    ///< For standard error, a line each; no line break at the end.

    friend bool operator==(const Answer&, const Answer&) = default;
};

} // namespace ravelo
