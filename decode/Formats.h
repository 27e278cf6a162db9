#pragma once

#include <QByteArrayView>

namespace ravelo::decode {

/// The only formats that are read.
enum class Format { none, png, jpeg, gif, bmp, webp, tiff, heif, svg };

/// By the first bytes only, whatever its name or type.
[[nodiscard]] Format formatOf(QByteArrayView bytes);

/// Qt's name for it; null if Qt does not read it here.
[[nodiscard]] const char* qtName(Format format);

} // namespace ravelo::decode
