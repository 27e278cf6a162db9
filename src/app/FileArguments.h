#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QStringList>

namespace ravelo {

/// The absolute path in `name`, which is one already or a file URL (RFC 8089). Nothing is looked
/// for on the disk. An error if it is neither, or not UTF-8, which is all that Qt can name a file
/// by.
[[nodiscard]] Result<QString> absolutePath(const QByteArray& name);

/// The absolute path of the file that a command line names, in `folder` if the name is relative.
/// Also an error if there is no such file. Asks the disk.
[[nodiscard]] Result<QString> existingFile(const QByteArray& name, const QByteArray& folder);

struct FoundFiles {
    QStringList paths;
    QStringList errors; ///< One for each that is not among them.
};

/// As `existingFile` does, in the folder of this process.
[[nodiscard]] FoundFiles findFiles(const QList<QByteArray>& names);

} // namespace ravelo
