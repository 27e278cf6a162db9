#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <variant>

namespace ravelo {

struct PictureFile {
    QByteArray path; ///< As the system has it: in any encoding.
};

/// A file's contents, or what was copied.
using PictureBytes = QByteArray;

/// Untrusted bytes.
using UntrustedPicture = std::variant<PictureFile, PictureBytes>;

/// Device pixels: a height, and the widths between which a picture may choose by its shape.
struct PictureShape {
    int height;
    int minWidth;
    int maxWidth;
};

/// What a picture is, by its beginning. `good` can be read whole.
struct PictureLook {
    enum class Kind { none, good, tooManyPixels };

    Kind kind = Kind::none;
    QSize size = {}; ///< In pixels, upright.

    [[nodiscard]] qint64 pixels() const { return qint64{size.width()} * size.height(); }
};

/// Decodes untrusted pictures outside this process: PNG, JPEG, GIF, BMP, WebP, TIFF and HEIF,
/// recognized by their contents. For anything else, and for what is too large or takes too long,
/// the result is empty. Blocks, for seconds. Any thread except for the main one, and several calls
/// at once.
class ImageDecoder {
public:
    virtual ~ImageDecoder() = default;

    /// The fastest: only the beginning of the picture is decoded.
    [[nodiscard]] virtual PictureLook look(const UntrustedPicture& picture) = 0;

    /// Fills the shape and is cropped around its middle.
    [[nodiscard]] virtual QImage filling(const UntrustedPicture& picture, PictureShape shape) = 0;

    /// An icon of the desktop's, which may also be an SVG; fits into a square of `size` pixels.
    [[nodiscard]] virtual QImage icon(const PictureFile& file, int size) = 0;

    /// All of it, encoded again as PNG.
    [[nodiscard]] virtual QByteArray png(const UntrustedPicture& picture) = 0;

    /// The file was deleted: drops everything cached for it. Any thread.
    virtual void forget(const PictureFile& file) = 0;
};

} // namespace ravelo
