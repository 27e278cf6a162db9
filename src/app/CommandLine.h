#pragma once

#include "base/Result.h"
#include "platform/system/DataLock.h"

#include <QByteArray>
#include <QStringList>

namespace ravelo {

/// A parsed command line.
struct Command {
    enum class Kind { showHelp, showVersion, showDetails, storeUsage, ask };
    /// What to do if no Ravelo runs. `start`: starting it is the answer. `readFiles`: answers from
    /// files, as far as possible.
    enum class IfNoneRuns { fail, start, startAndAsk, readFiles, erase };

    Kind kind = Kind::ask;
    QStringList request;     ///< For Commands.
    QList<QByteArray> files; ///< To be resolved and added to the request.
    IfNoneRuns ifNoneRuns = IfNoneRuns::fail;
    DataLock::Claim claim = DataLock::Claim::ifFree; ///< If it starts.

    friend bool operator==(const Command&, const Command&) = default;
};

/// `arguments` are without the program's name. An error names the invalid argument.
[[nodiscard]] Result<Command> parseCommandLine(const QList<QByteArray>& arguments);

[[nodiscard]] QString helpText();
[[nodiscard]] QString versionText();

/// The version, and which display server would be used here.
[[nodiscard]] QString detailsText();

} // namespace ravelo
