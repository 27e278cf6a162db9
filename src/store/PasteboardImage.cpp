#include "store/PasteboardImage.h"

#include "base/UriList.h"
#include "platform/ImageDecoder.h"
#include "platform/Pasteboard.h"

#include <QSysInfo>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto pngType = "image/png"_L1;
constexpr auto filesType = "text/uri-list"_L1;

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

bool looksGood(const QString& type, const QByteArray& bytes, ImageDecoder& decoder) {
    if (type == pngType || bytes.isEmpty()) {
        return !bytes.isEmpty();
    }
    return type != filesType && !decoder.size(bytes).isEmpty();
}

/// The first file of a list that is on this machine; empty where there is none.
QString firstFile(const QByteArray& uriList) {
    return localFiles(uriList, QSysInfo::machineHostName().toUtf8()).value(0).toLocalFile();
}

} // namespace

QString nextImageType(const PasteboardSnapshot& contents, ImageDecoder& decoder) {
    for (const QString& type : candidates(contents.types)) {
        const auto answer = contents.answers.find(type);
        if (answer == contents.answers.end()) {
            return type;
        }
        if (looksGood(type, answer->value_or(QByteArray()), decoder)) {
            return {};
        }
    }
    return {};
}

QByteArray pngImage(const PasteboardSnapshot& contents, ImageDecoder& decoder) {
    for (const QString& type : candidates(contents.types)) {
        const QByteArray bytes = contents.answers.value(type).value_or(QByteArray());
        if (bytes.isEmpty()) {
            continue;
        }
        QByteArray png = type == pngType     ? bytes
                         : type == filesType ? decoder.png(PictureFile{firstFile(bytes)})
                                             : decoder.png(bytes);
        if (!png.isEmpty()) {
            return png;
        }
    }
    return {};
}

} // namespace ravelo
