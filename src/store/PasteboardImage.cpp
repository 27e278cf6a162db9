#include "store/PasteboardImage.h"

#include "platform/Pasteboard.h"

#include <QBuffer>
#include <QImage>
#include <QImageIOHandler>
#include <QImageReader>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto pngType = "image/png"_L1;
constexpr auto filesType = "text/uri-list"_L1;
/// Four bytes each, as Qt's own limit has it; a screen of 8K just fits in.
constexpr qint64 mostPixels = qint64{32} * 1024 * 1024;
/// zlib's level 1: half the time, hardly larger.
constexpr int quickCompression = 80;

/// The forms worth asking for, best first.
QStringList candidates(const QStringList& offered) {
    QStringList list;
    const auto take = [&](const QString& type) {
        if (offered.contains(type) && !list.contains(type)) {
            list.append(type);
        }
    };
    for (const auto known : {pngType, "image/tiff"_L1, "image/jpeg"_L1, "image/webp"_L1,
                             "image/bmp"_L1, "image/gif"_L1}) {
        take(known);
    }
    for (const QString& type : offered) {
        // A drawing is a document: it has no size of its own and can draw in other files.
        if (type.startsWith("image/"_L1) && !type.startsWith("image/svg"_L1)) {
            take(type);
        }
    }
    take(filesType);
    return list;
}

/// What its contents are, whatever its type or name says.
enum class Picture { none, good, tooManyPixels };

Picture pictureIn(QImageReader& reader) {
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead() || reader.format().startsWith("svg") || reader.format() == "pdf") {
        return Picture::none;
    }
    if (!reader.supportsOption(QImageIOHandler::Size)) {
        return Picture::good; // Qt's own limit holds for those.
    }
    const QSize size = reader.size();
    if (!size.isValid()) {
        return Picture::none;
    }
    return qint64(size.width()) * size.height() <= mostPixels ? Picture::good
                                                              : Picture::tooManyPixels;
}

Picture pictureIn(const QString& type, const QByteArray& bytes) {
    if (type == pngType || bytes.isEmpty()) {
        return bytes.isEmpty() ? Picture::none : Picture::good;
    }
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    return pictureIn(reader);
}

QByteArray decodedToPng(QIODevice& device) {
    QImageReader reader(&device);
    QImage image;
    if (pictureIn(reader) != Picture::good || !reader.read(&image)) {
        return {};
    }
    QBuffer png;
    return image.save(&png, "PNG", quickCompression) ? png.data() : QByteArray();
}

QByteArray bytesToPng(QByteArray bytes) {
    QBuffer buffer(&bytes);
    return decodedToPng(buffer);
}

} // namespace

QString nextImageType(const PasteboardSnapshot& contents) {
    for (const QString& type : candidates(contents.types)) {
        const auto answer = contents.answers.find(type);
        if (answer == contents.answers.end()) {
            return type;
        }
        if (pictureIn(type, answer->value_or(QByteArray())) == Picture::good) {
            return {};
        }
    }
    return {};
}

bool hasGoodImage(const PasteboardSnapshot& contents) {
    return std::ranges::any_of(candidates(contents.types), [&](const QString& type) {
        const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
        return type == filesType ? !bytes.isEmpty() : pictureIn(type, bytes) == Picture::good;
    });
}

qint64 oversizedImage(const PasteboardSnapshot& contents) {
    qint64 largest = 0;
    for (const QString& type : candidates(contents.types)) {
        const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
        const bool tooManyPixels = pictureIn(type, bytes) == Picture::tooManyPixels;
        largest = std::max({largest, contents.tooLarge.value(type),
                            tooManyPixels ? qint64(bytes.size()) : qint64(0)});
    }
    return largest;
}

QByteArray pngImage(const PasteboardSnapshot& contents, const QByteArray& file) {
    for (const QString& type : candidates(contents.types)) {
        const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
        if (bytes.isEmpty()) {
            continue;
        }
        QByteArray png = type == pngType     ? bytes
                         : type == filesType ? bytesToPng(file)
                                             : bytesToPng(bytes);
        if (!png.isEmpty()) {
            return png;
        }
    }
    return {};
}

} // namespace ravelo
