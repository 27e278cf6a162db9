#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace ravelo::decode {

/// The only formats that are read.
enum class Format { none, png, jpeg, gif, bmp, webp, tiff, heif, svg };

/// By the first bytes only, whatever its name or type.
[[nodiscard]] Format formatOf(QByteArrayView bytes);

/// Whether it begins like a picture of which a PNG can be made: any of them but a drawing, which is
/// a document, has no size of its own and can draw in other files.
[[nodiscard]] bool isRaster(QByteArrayView bytes);

/// How many pixels a PNG says it has; nothing if it does not begin like a valid one.
[[nodiscard]] std::optional<int64_t> pngPixels(QByteArrayView bytes);

/// Whether Qt needs eight bytes instead of four for each pixel of this PNG.
[[nodiscard]] bool isDeepPng(QByteArrayView bytes);

/// Qt's name for it; null if Qt does not read it here.
[[nodiscard]] const char* qtName(Format format);

} // namespace ravelo::decode
