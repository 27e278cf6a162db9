#pragma once

#include <QByteArrayView>

namespace ravelo::decode {

/// The only formats that are read.
enum class Format { none, png, jpeg, gif, bmp, webp, tiff, heif, svg };

/// By the first bytes alone, whatever a name or a type says.
[[nodiscard]] Format formatOf(QByteArrayView bytes);

/// What Qt calls it; null if Qt does not read it here.
[[nodiscard]] const char* qtName(Format format);

} // namespace ravelo::decode
