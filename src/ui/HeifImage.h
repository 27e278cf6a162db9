#pragma once

#include <QImage>
#include <QString>

namespace ravelo {

/// The image in a file of the kind that telephones make (HEIF, ISO/IEC 23008-12), by libheif where
/// that is installed; it is loaded with the first such file. May be the small one that the file
/// keeps for lists, if that is no lower than `height`. Null where there is none. Not for the main
/// thread.
[[nodiscard]] QImage heifImage(const QString& path, int height);

} // namespace ravelo
