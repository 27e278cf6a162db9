#pragma once

#include "base/Result.h"
#include "monitor/UsageWindow.h"

#include <QByteArray>

#include <optional>

// The file "~/.ravelo/usage.json", to which other programs write the plan's usage. All block; any
// thread.

namespace ravelo {

[[nodiscard]] QByteArray usageFile(const QByteArray& home);

/// Nothing if the file is missing or malformed.
[[nodiscard]] std::optional<PlanWindows> loadUsage(const QByteArray& home);

/// When the file was written; nothing if it is missing.
[[nodiscard]] std::optional<Date> usageWritten(const QByteArray& home);

/// Atomically writes what `loadUsage` reads, from the input of Claude Code's status line; readable
/// by the user only. Fails without changing the file if the input has no usage, as it has before
/// the first answer of a session.
[[nodiscard]] Result<void> storeUsage(const QByteArray& home, const QByteArray& statusLine);

} // namespace ravelo
