#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QStringList>

namespace ravelo {

/// The absolute path in `name`, an absolute path or a file URL (RFC 8089). Does not access the
/// disk. An error if it is neither, or not UTF-8, because Qt cannot open such a file.
[[nodiscard]] Result<QString> absolutePath(const QByteArray& name);

/// The absolute path of a file in a command line, in `folder` if the name is relative. Also an
/// error if there is no such file. Accesses the disk.
[[nodiscard]] Result<QString> existingFile(const QByteArray& name, const QByteArray& folder);

struct FoundFiles {
    QStringList paths;
    QStringList errors; ///< One per other file.
};

/// Like `existingFile`, in the working directory.
[[nodiscard]] FoundFiles findFiles(const QList<QByteArray>& names);

} // namespace ravelo
