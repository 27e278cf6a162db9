#pragma once

#include "base/Scheduler.h"
#include "monitor/UsageWindow.h"

#include <QByteArray>
#include <QByteArrayView>

// The two forms in which the plan's usage is told, and the credentials to ask for it. Pure
// functions on JSON (RFC 8259).

namespace ravelo {

/// What the provider answers: percents, and times as RFC 3339 with a fraction of the second; a time
/// in another form counts as not told. Nothing where it is no object.
[[nodiscard]] std::optional<PlanWindows> readUsageAnswer(QByteArrayView json);

/// What the usage file holds, in the form of Claude Code's status line: percents, and times in
/// seconds since 1970. Nothing where it has no "rate_limits".
[[nodiscard]] std::optional<PlanWindows> readUsageFile(QByteArrayView json);

/// What of Claude Code's status line belongs into the usage file, and nothing else of it: the parts
/// that `readUsageFile` reads. Nothing where it has no "rate_limits".
[[nodiscard]] std::optional<QByteArray> usageFileOf(QByteArrayView statusLine);

/// How long a server wants to be left alone, from its header Retry-After (RFC 9110): a number of
/// seconds or a date. Never more than a day; zero if the header makes no sense.
[[nodiscard]] Seconds readRetryAfter(const QByteArray& header, Date now);

struct Credentials {
    QByteArray accessToken;          ///< Fit for an HTTP header.
    std::optional<double> expiresAt; ///< Seconds since 1970.
};

/// As Claude Code keeps them. Nothing where it is logged out.
[[nodiscard]] std::optional<Credentials> readCredentials(QByteArrayView json);

} // namespace ravelo
