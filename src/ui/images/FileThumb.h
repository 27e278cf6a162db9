#pragma once

#include <QImage>
#include <QString>
#include <QUrl>

namespace ravelo {

class FileIcons;
class ImageDecoder;

inline constexpr double maxThumbWidth = 72; ///< Logical pixels.

/// The picture of a parked file on a tile of `scale` device pixels per logical pixel: a preview of
/// a readable image, otherwise an icon. Reads the file: not on the main thread.
[[nodiscard]] QImage fileThumb(const QUrl& file, double scale, const FileIcons& icons,
                               ImageDecoder& decoder);

/// Address for QML in the image provider "file", which passes the names to `fileOfThumb`.
[[nodiscard]] QString fileThumbAddress(const QUrl& file);
[[nodiscard]] QUrl fileOfThumb(const QString& name);

/// The icon of a kind of file, in a square of `size` device pixels: the desktop's, or a page with
/// the extension. Not on the main thread.
[[nodiscard]] QImage fileIcon(const QUrl& file, int size, const FileIcons& icons,
                              ImageDecoder& decoder);

} // namespace ravelo
