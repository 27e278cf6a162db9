#include "store/PasteboardImage.h"

#include "platform/Pasteboard.h"

#include <QBuffer>
#include <QImage>
#include <QImageIOHandler>
#include <QImageReader>

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

/// A picture by its contents, whatever its type or name says, and of a bearable size.
bool isPicture(QImageReader& reader) {
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead() || reader.format().startsWith("svg") || reader.format() == "pdf") {
        return false;
    }
    if (!reader.supportsOption(QImageIOHandler::Size)) {
        return true; // Qt's own limit holds for those.
    }
    const QSize size = reader.size();
    return size.isValid() && qint64(size.width()) * size.height() <= mostPixels;
}

bool looksGood(const QString& type, const QByteArray& bytes) {
    if (type == pngType || bytes.isEmpty()) {
        return !bytes.isEmpty();
    }
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    return isPicture(reader);
}

QByteArray decodedToPng(QIODevice& device) {
    QImageReader reader(&device);
    QImage image;
    if (!isPicture(reader) || !reader.read(&image)) {
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
        if (looksGood(type, answer->value_or(QByteArray()))) {
            return {};
        }
    }
    return {};
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
