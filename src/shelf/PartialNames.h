#pragma once

#include <QByteArray>

namespace ravelo {

enum class NameKind {
    whole,     ///< A finished file.
    temporary, ///< Hidden, a backup, or a copy about to replace a file.
    download,  ///< A transfer in progress.
};

/// Judges a file by its name, following the habits of browsers, file managers and download
/// programs.
[[nodiscard]] NameKind kindOfName(const QByteArray& name);

} // namespace ravelo
