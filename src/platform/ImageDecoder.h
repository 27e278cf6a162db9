#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <variant>

namespace ravelo {

struct PictureFile {
    QString path;
};

/// A file's contents, or what was copied.
using PictureBytes = QByteArray;

/// Bytes that nobody vouches for.
using UntrustedPicture = std::variant<PictureFile, PictureBytes>;

/// Device pixels: a height, and the widths between which a picture may choose by its shape.
struct PictureShape {
    int height;
    int minWidth;
    int maxWidth;
};

/// Reads pictures that others made, away from this process. They are PNG, JPEG, GIF, BMP, WebP,
/// TIFF and HEIF, told by their contents; anything else, what is too large and what takes too long
/// is no picture, and then what is returned is empty. Blocks, for seconds; any thread but the main
/// one, and several at once.
class ImageDecoder {
public:
    virtual ~ImageDecoder() = default;

    /// In pixels, upright. The quickest: hardly more than the beginning is read.
    [[nodiscard]] virtual QSize size(const UntrustedPicture& picture) = 0;

    /// Fills the shape and is cropped around its middle.
    [[nodiscard]] virtual QImage filling(const UntrustedPicture& picture, PictureShape shape) = 0;

    /// An icon of the desktop's, which may also be an SVG; fits into a square of `size` pixels.
    [[nodiscard]] virtual QImage icon(const PictureFile& file, int size) = 0;

    /// All of it, encoded again as PNG.
    [[nodiscard]] virtual QByteArray png(const UntrustedPicture& picture) = 0;
};

} // namespace ravelo
