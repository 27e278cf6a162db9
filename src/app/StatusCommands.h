#pragma once

#include "base/Date.h"
#include "platform/Answer.h"

#include <QStringList>

// For bars, prompts and Claude Code's status line.

namespace ravelo {

struct MonitorStatus;
struct StatusChoice;

/// Prints one line, or with "--json" one object, or what "--waybar" or "--tmux" displays.
[[nodiscard]] Answer statusAnswer(const MonitorStatus& status, Date now, const StatusChoice& choice,
                                  const QStringList& arguments);

/// The same from this user's files, if no Ravelo runs. Blocks.
[[nodiscard]] Answer statusFromFiles(const QString& preferenceFile, const QStringList& arguments);

enum class Printing { none, line };

/// Stores what Claude Code hands to its status line on standard input, for the Ravelo that runs or
/// will run, and prints it if wanted. Blocks.
[[nodiscard]] Answer storeUsageFromInput(Printing printing);

} // namespace ravelo
