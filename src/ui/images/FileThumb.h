#pragma once

#include <QImage>
#include <QString>
#include <QUrl>

namespace ravelo {

class FileIcons;
class ImageDecoder;

inline constexpr double widestThumb = 72; ///< Logical pixels.

/// The picture of a parked file on a tile of `scale` device pixels a logical one: a preview where
/// the file is an image that can be read, otherwise the icon of its kind. Reads the file: not for
/// the main thread.
[[nodiscard]] QImage fileThumb(const QUrl& file, double scale, const FileIcons& icons,
                               ImageDecoder& decoder);

/// Where QML finds it, in an image provider that is called "file" and hands the names it is asked
/// for to `fileOfThumb`.
[[nodiscard]] QString fileThumbAddress(const QUrl& file);
[[nodiscard]] QUrl fileOfThumb(const QString& name);

/// The icon for a kind of file, in a square of `size` device pixels: the desktop's, or where it has
/// none a page with the extension on it. Not for the main thread.
[[nodiscard]] QImage fileIcon(const QUrl& file, int size, const FileIcons& icons,
                              ImageDecoder& decoder);

} // namespace ravelo
