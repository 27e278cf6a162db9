#pragma once

#include "base/Scheduler.h"
#include "base/Secret.h"
#include "monitor/UsageWindow.h"

#include <QByteArray>
#include <QByteArrayView>

// The two formats of the plan's usage, and the credentials for querying it. Pure functions on JSON
// (RFC 8259).

namespace ravelo {

/// The provider's answer: percentages, and times as RFC 3339 with a fraction of a second; a time in
/// another form counts as missing. Nothing if it is not an object.
[[nodiscard]] std::optional<PlanWindows> readUsageAnswer(QByteArrayView json);

/// The usage file, in the format of Claude Code's status line: percentages, and times in seconds
/// since 1970. Nothing if it has no "rate_limits".
[[nodiscard]] std::optional<PlanWindows> readUsageFile(QByteArrayView json);

/// The parts of Claude Code's status line that `readUsageFile` reads, and nothing else. Nothing if
/// it has no "rate_limits".
[[nodiscard]] std::optional<QByteArray> usageFileOf(QByteArrayView statusLine);

/// The delay that a Retry-After header (RFC 9110) asks for, as a number of seconds or a date. At
/// most a day; zero if the header is malformed.
[[nodiscard]] Seconds readRetryAfter(const QByteArray& header, Date now);

struct Credentials {
    Secret accessToken;              ///< Valid in an HTTP header.
    std::optional<double> expiresAt; ///< Seconds since 1970.
};

/// From Claude Code's file. Nothing if logged out. Leaves no copy of the token behind.
[[nodiscard]] std::optional<Credentials> readCredentials(QByteArrayView json);

} // namespace ravelo
