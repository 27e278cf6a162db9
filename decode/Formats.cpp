#include "decode/Formats.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace ravelo::decode {

namespace {

struct Magic {
    Format format;
    QByteArrayView bytes;
    qsizetype offset = 0;
};

const std::array magics{
    Magic{Format::png, "\x89PNG\r\n\x1a\n"},
    Magic{Format::jpeg, "\xff\xd8\xff"},
    Magic{Format::gif, "GIF87a"},
    Magic{Format::gif, "GIF89a"},
    Magic{Format::bmp, "BM"},
    Magic{Format::webp, "WEBP", 8},
    Magic{Format::tiff, QByteArrayView("II*\0", 4)},
    Magic{Format::tiff, QByteArrayView("MM\0*", 4)},
    Magic{Format::heif, "ftyphei", 4},
    Magic{Format::heif, "ftyphevc", 4},
    Magic{Format::heif, "ftyphevx", 4},
    Magic{Format::heif, "ftypmif1", 4},
    Magic{Format::heif, "ftypmsf1", 4},
};

bool isSvg(QByteArrayView bytes) {
    constexpr qsizetype prologue = 4096;
    const QByteArray start = bytes.first(std::min(bytes.size(), prologue)).toByteArray().trimmed();
    return (start.startsWith('<') || start.startsWith("\xef\xbb\xbf<")) && start.contains("<svg");
}

} // namespace

Format formatOf(QByteArrayView bytes) {
    const auto fits = [bytes](const Magic& magic) {
        return bytes.size() >= magic.offset + magic.bytes.size() &&
               bytes.sliced(magic.offset, magic.bytes.size()) == magic.bytes;
    };
    const auto* const found = std::ranges::find_if(magics, fits);
    return found != magics.end() ? found->format : isSvg(bytes) ? Format::svg : Format::none;
}

bool isRaster(QByteArrayView bytes) {
    const Format format = formatOf(bytes);
    return format != Format::none && format != Format::svg;
}

std::optional<int64_t> pngPixels(QByteArrayView bytes) {
    constexpr qsizetype width = 16; // After the signature, a length and "IHDR".
    constexpr qsizetype height = 20;
    if (formatOf(bytes) != Format::png || bytes.size() < height + 4 ||
        bytes.sliced(12, 4) != QByteArrayView("IHDR")) {
        return std::nullopt;
    }
    const auto across = qFromBigEndian<qint32>(bytes.data() + width);
    const auto down = qFromBigEndian<qint32>(bytes.data() + height);
    return across > 0 && down > 0 ? std::optional(int64_t{across} * down) : std::nullopt;
}

bool isDeepPng(QByteArrayView bytes) {
    constexpr qsizetype depth = 24; // Then the type of colours.
    return pngPixels(bytes) && bytes.size() > depth + 1 && bytes[depth] == 16 &&
           bytes[depth + 1] != 0; // Qt has a format of two bytes for grey.
}

const char* qtName(Format format) {
    switch (format) {
    case Format::png:
        return "png";
    case Format::jpeg:
        return "jpeg";
    case Format::gif:
        return "gif";
    case Format::bmp:
        return "bmp";
    case Format::webp:
        return "webp";
    case Format::tiff:
        return "tiff";
    case Format::svg:
        return "svg";
    case Format::heif:
    case Format::none:
        break;
    }
    return nullptr;
}

} // namespace ravelo::decode
