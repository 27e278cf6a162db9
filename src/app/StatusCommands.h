#pragma once

#include "base/Date.h"
#include "platform/Answer.h"

#include <QStringList>

// For bars, prompts and Claude Code's status line.

namespace ravelo {

struct MonitorStatus;

/// Prints one line, or with "--json" one object.
[[nodiscard]] Answer statusAnswer(const MonitorStatus& status, Date now,
                                  const QStringList& arguments);

/// The same from this user's files, if no Ravelo runs. Blocks.
[[nodiscard]] Answer statusFromFiles(const QStringList& arguments);

/// Stores the plan usage that is read from standard input, for the Ravelo that runs or
/// will run. Blocks.
[[nodiscard]] Answer storeUsageFromInput();

} // namespace ravelo
