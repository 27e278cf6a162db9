#pragma once

#include "platform/PasteKeys.h"

#include <QStringList>

#include <optional>

namespace ravelo {

/// The keys that paste in the terminal with one of these names; nothing if it is no terminal.
[[nodiscard]] std::optional<PasteChord> terminalChord(const QStringList& names);

} // namespace ravelo
