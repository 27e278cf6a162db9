#pragma once

#include <QByteArray>

namespace ravelo {

enum class NameKind {
    whole,     ///< As the user sees it.
    temporary, ///< Hidden, or of some program's own: a copy that replaces a file, a backup.
    download,  ///< Of a transfer that is under way.
};

/// What the name alone says of a file, by what browsers, file managers and download programs do.
[[nodiscard]] NameKind kindOfName(const QByteArray& name);

} // namespace ravelo
