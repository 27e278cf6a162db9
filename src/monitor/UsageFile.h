#pragma once

#include "base/Result.h"
#include "monitor/UsageWindow.h"

#include <QByteArray>

#include <optional>

// The file "~/.ravelo/usage.json", in which other programs tell how much of the plan is used. All
// block; any thread.

namespace ravelo {

/// Nothing where the file is missing or makes no sense.
[[nodiscard]] std::optional<PlanWindows> loadUsage(const QByteArray& home);

/// When the file was written; nothing if it is missing.
[[nodiscard]] std::optional<Date> usageWritten(const QByteArray& home);

/// Keeps what Claude Code gives its status line, as far as `loadUsage` reads it: replaced in one
/// step, readable by its user alone. An error leaves the file as it is, also where the status line
/// tells nothing of the plan, as it does before the first answer of a session.
[[nodiscard]] Result<void> storeUsage(const QByteArray& home, const QByteArray& statusLine);

} // namespace ravelo
