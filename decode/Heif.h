#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace ravelo::decode {

inline constexpr qint64 maxHeifPixels = 50'000'000;

/// Loads the codecs. Without it the first picture does, which needs files.
void loadHeif();

/// HEIF (ISO/IEC 23008-12), as written by phones; upright. Empty if it cannot be read.
[[nodiscard]] QSize heifSize(const QByteArray& bytes);

/// The embedded thumbnail if it has `height`, otherwise the whole picture.
[[nodiscard]] QImage heifImage(const QByteArray& bytes, int height);

} // namespace ravelo::decode
