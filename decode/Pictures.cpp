#include "decode/Pictures.h"

#include "decode/Formats.h"
#include "decode/Heif.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace ravelo::decode {

namespace {

/// A JPEG is scaled down while it is read.
constexpr qint64 maxScaledJpegPixels = 128 << 20;
constexpr int maxMegabytes = 128; ///< Of pixels, at four bytes each.
/// zlib level 1: half the time, hardly larger.
constexpr int quickCompression = 80;

QSize turned(QSize size, bool turn) {
    return turn ? size.transposed() : size;
}

/// The size to fill for a picture of this size.
QSize fillSize(const Request& request, QSize natural) {
    const double width = double(request.height) * natural.width() / natural.height();
    const auto least = double(request.minWidth);
    return {qRound(std::clamp(width, least, std::max<double>(least, request.maxWidth))),
            request.height};
}

QSize fitSize(const Request& request, QSize natural) {
    return natural.scaled(request.maxWidth, request.height, Qt::KeepAspectRatio).expandedTo({1, 1});
}

Picture probed(QSize size, qint64 limit) {
    const bool bearable = qint64(size.width()) * size.height() <= limit;
    return size.isEmpty() ? Picture()
                          : Picture{bearable ? Status::done : Status::tooManyPixels, size, {}, {}};
}

/// The part of the picture that is visible if it fills `size`.
QRect visiblePart(QSize natural, QSize size) {
    const QSize part = size.scaled(natural, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {QPoint((natural.width() - part.width()) / 2, (natural.height() - part.height()) / 2),
            part};
}

QByteArray encoded(const QImage& image) {
    QBuffer png;
    return image.save(&png, "PNG", quickCompression) ? png.data() : QByteArray();
}

Picture wholeAsPng(const QImage& image) {
    const QByteArray png = image.isNull() ? QByteArray() : encoded(image);
    return png.isEmpty() ? Picture() : Picture{Status::done, image.size(), {}, png};
}

Picture asPixels(const QImage& image, QSize expected) {
    if (image.size() != expected) {
        return {};
    }
    return {Status::done, expected, image.convertToFormat(QImage::Format_ARGB32_Premultiplied), {}};
}

/// Not a copy if its pixels allow that: then `image` has to outlive it.
QImage partOf(const QImage& image, QRect part) {
    constexpr int wholeBytes = 24; // Smaller pixels share bytes, or have a table of colours.
    if (image.depth() < wholeBytes) {
        return image.copy(part);
    }
    const uchar* const first =
        image.constScanLine(part.y()) + qsizetype(part.x()) * image.depth() / 8;
    return {first, part.width(), part.height(), image.bytesPerLine(), image.format()};
}

QImage scaled(const QImage& image, QRect part, QSize size) {
    if (part.size() == size) {
        return image.copy(part);
    }
    return partOf(image, part).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

class QtPicture {
public:
    QtPicture(Format format, QByteArray bytes) : format_(format), bytes_(std::move(bytes)) {
        buffer_.setBuffer(&bytes_);
        buffer_.open(QIODevice::ReadOnly);
        reader_.setAutoDetectImageFormat(false);
        reader_.setDecideFormatFromContent(false);
        reader_.setFormat(qtName(format));
        reader_.setDevice(&buffer_);
        reader_.setAutoTransform(true);
        stored_ = reader_.size();
        turn_ = reader_.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    }

    /// Whether it may be read for this request.
    [[nodiscard]] Picture probe(Kind kind) const {
        const bool scaled = format_ == Format::jpeg && (kind == Kind::fill || kind == Kind::icon);
        const qint64 limit = format_ == Format::svg ? std::numeric_limits<qint64>::max()
                             : scaled               ? maxScaledJpegPixels
                                                    : maxPixels;
        return probed(turned(stored_, turn_), limit);
    }

    Picture filling(const Request& request) {
        const QSize size = fillSize(request, turned(stored_, turn_));
        if (format_ == Format::png) { // Qt would copy the visible part, and never turns a PNG.
            const QImage whole = reader_.read();
            return whole.size() == stored_
                       ? asPixels(scaled(whole, visiblePart(stored_, size), size), size)
                       : Picture();
        }
        // Crop first, because scaling a very long picture as a whole would exhaust the memory.
        // The orientation is applied after that.
        reader_.setClipRect(visiblePart(stored_, turned(size, turn_)));
        reader_.setScaledSize(turned(size, turn_));
        return asPixels(reader_.read(), size);
    }

    Picture fitting(const Request& request) {
        const QSize size = fitSize(request, turned(stored_, turn_));
        reader_.setScaledSize(turned(size, turn_));
        return asPixels(reader_.read(), size);
    }

    Picture png() { return wholeAsPng(reader_.read()); }

private:
    Format format_;
    QByteArray bytes_;
    QBuffer buffer_;
    QImageReader reader_;
    QSize stored_;
    bool turn_ = false;
};

Picture fromQt(const Request& request, Format format, const QByteArray& bytes) {
    QtPicture picture(format, bytes);
    Picture found = picture.probe(request.kind);
    if (found.status != Status::done) {
        return found;
    }
    switch (request.kind) {
    case Kind::probe:
        return found;
    case Kind::fill:
        return picture.filling(request);
    case Kind::icon:
        return picture.fitting(request);
    case Kind::png:
        return picture.png();
    }
    return {};
}

const HeifReader* heif = nullptr;

Picture fromHeif(const Request& request, const QByteArray& bytes) {
    if (heif == nullptr) {
        return {};
    }
    const bool whole = request.kind == Kind::probe || request.kind == Kind::png;
    Picture found = probed(heif->size(bytes), whole ? maxPixels : maxHeifPixels);
    if (found.status != Status::done || request.kind == Kind::probe) {
        return found;
    }
    if (whole) {
        return wholeAsPng(heif->image(bytes, std::numeric_limits<int>::max()));
    }
    const QImage image = heif->image(bytes, request.height);
    if (image.isNull()) {
        return {};
    }
    const bool fills = request.kind == Kind::fill;
    const QSize size = fills ? fillSize(request, image.size()) : fitSize(request, image.size());
    return asPixels(scaled(image, fills ? visiblePart(image.size(), size) : image.rect(), size),
                    size);
}

bool isSane(const Request& request) {
    const bool sized = request.kind == Kind::fill || request.kind == Kind::icon;
    const auto isSide = [](int32_t side) {
        return side > 0 && side <= maxSide;
    };
    return request.kind <= Kind::png &&
           (!sized ||
            (isSide(request.height) && isSide(request.minWidth) && isSide(request.maxWidth)));
}

/// For the formats that Qt cannot write.
constexpr std::array oneGifPixel{'G',    'I',    'F',  '8',  '9',  'a',  '\1', '\0',   '\1',
                                 '\0',   '\x80', '\0', '\0', '\0', '\0', '\0', '\xff', '\xff',
                                 '\xff', ',',    '\0', '\0', '\0', '\0', '\1', '\0',   '\1',
                                 '\0',   '\0',   '\2', '\2', 'D',  '\1', '\0', ';'};
/// Asking Qt to write one would load the libraries of all formats.
constexpr const char* onePngPixel = // Base64.
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAA"
    "AADElEQVR42mNgaGgAAAGEAQFocvOPAAAAAElFTkSuQmCC";
constexpr const char* smallSvg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="2" height="2">)"
                                 R"(<path d="M0 0h2v2z" fill="#123"/></svg>)";

QByteArray smallPicture(Format format) {
    if (format == Format::gif) {
        return {oneGifPixel.data(), oneGifPixel.size()};
    }
    if (format == Format::svg) {
        return smallSvg;
    }
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer buffer;
    image.save(&buffer, qtName(format));
    return buffer.data();
}

} // namespace

Picture decodePicture(const Request& request, const QByteArray& bytes) {
    const Format format = formatOf(bytes);
    if (!isSane(request) || format == Format::none || bytes.size() > maxBytes ||
        (format == Format::svg && request.kind != Kind::icon)) {
        return {};
    }
    QImageReader::setAllocationLimit(maxMegabytes);
    return format == Format::heif ? fromHeif(request, bytes) : fromQt(request, format, bytes);
}

void readHeifBy(const HeifReader* reader) {
    heif = reader;
}

void loadFormats(Formats formats) {
    if (formats == Formats::png) {
        (void)decodePicture({Kind::icon, 1, 1, 1, 0}, QByteArray::fromBase64(onePngPixel));
        return;
    }
    for (const Format format : {Format::png, Format::jpeg, Format::gif, Format::bmp, Format::webp,
                                Format::tiff, Format::svg}) {
        const QByteArray bytes = smallPicture(format);
        for (const Kind kind : {Kind::icon, Kind::png}) {
            (void)decodePicture({kind, 1, 1, 1, 0}, bytes);
        }
    }
}

} // namespace ravelo::decode
