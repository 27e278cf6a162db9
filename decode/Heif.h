#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace ravelo::decode {

inline constexpr qint64 maxHeifPixels = 50'000'000;

/// HEIF (ISO/IEC 23008-12), as written by phones; upright. Empty if it cannot be read.
[[nodiscard]] QSize heifSize(const QByteArray& bytes);

/// The embedded thumbnail if it has `height`, otherwise the whole picture.
[[nodiscard]] QImage heifImage(const QByteArray& bytes, int height);

/// The functions above, for who loads them as a library: initialising libheif takes as long as the
/// rest of a start, so a process that reads only PNG goes without.
struct HeifReader {
    QSize (*size)(const QByteArray& bytes);
    QImage (*image)(const QByteArray& bytes, int height);
};

/// Loads the codecs, too, which needs files.
extern "C" const HeifReader* raveloHeif();

} // namespace ravelo::decode
