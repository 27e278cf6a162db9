#pragma once

#include "monitor/StatusText.h"

// The status for bars that want more than a line of text. The plan comes first.

namespace ravelo {

/// For waybar: one JSON object with "text", "tooltip", "class" and "percentage". The last two are
/// those of the fuller window: "ok", "warn" from 60 % or "critical" from 85 %.
[[nodiscard]] QByteArray waybarText(const MonitorStatus& status, Date now, const QLocale& locale,
                                    const StatusChoice& choice,
                                    const QTimeZone& zone = QTimeZone::systemTimeZone());

/// For tmux: a short line with its colour codes.
[[nodiscard]] QByteArray tmuxText(const MonitorStatus& status, Date now,
                                  const StatusChoice& choice);

/// For Claude Code's status line, from what it hands over.
[[nodiscard]] QByteArray handedOverText(const HandedOver& handed, const PlanWindows& plan);

} // namespace ravelo
