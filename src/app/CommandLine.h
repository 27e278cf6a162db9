#pragma once

#include "base/Result.h"

#include <QStringList>

namespace ravelo {

/// What the user asked for at the command line.
enum class Command { start, toggle, quit, showHelp, showVersion };

/// `arguments` without the program's own name. An error names the argument that makes no sense.
[[nodiscard]] Result<Command> parseCommandLine(const QStringList& arguments);

[[nodiscard]] QString helpText();
[[nodiscard]] QString versionText();

} // namespace ravelo
