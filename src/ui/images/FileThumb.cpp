#include "ui/images/FileThumb.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "platform/FileIcons.h"
#include "platform/ImageDecoder.h"
#include "ui/images/FilePage.h"
#include "ui/images/ThumbnailProvider.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QPainter>

#include <algorithm>
#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array imageExtensions{"png"_L1, "jpg"_L1,  "jpeg"_L1, "heic"_L1, "heif"_L1,
                                     "gif"_L1, "tiff"_L1, "tif"_L1,  "webp"_L1, "bmp"_L1};

constexpr double previewHeight = 56;
constexpr double narrowestPreview = 40;
constexpr double previewRadius = 8;
constexpr double iconSize = 64;

/// Width by aspect ratio, within the tile.
PictureShape previewShape(double scale) {
    return {qRound(previewHeight * scale), qRound(narrowestPreview * scale),
            qRound(maxThumbWidth * scale)};
}

/// By name alone, most specific first.
QStringList iconNames(const QUrl& file) {
    if (isFolder(filePath(file))) {
        return {u"inode-directory"_s, u"folder"_s};
    }
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension);
    return {type.iconName(), type.genericIconName()};
}

QImage centred(const QImage& image, int size) {
    QImage square(size, size, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((size - image.width()) / 2, (size - image.height()) / 2, image);
    return square;
}

} // namespace

QImage fileThumb(const QUrl& file, double scale, const FileIcons& icons, ImageDecoder& decoder) {
    const QString extension = QFileInfo(file.fileName()).suffix().toLower();
    if (std::ranges::find(imageExtensions, extension) != imageExtensions.end()) {
        const QImage preview = decoder.filling(PictureFile{filePath(file)}, previewShape(scale));
        if (!preview.isNull()) {
            return rounded(preview, previewRadius * scale);
        }
    }
    return fileIcon(file, qRound(iconSize * scale), icons, decoder);
}

// Hex, because QML changes the encoding of URLs.
QString fileThumbAddress(const QUrl& file) {
    return u"image://file/"_s + QString::fromLatin1(file.toEncoded().toHex());
}

QUrl fileOfThumb(const QString& name) {
    return QUrl::fromEncoded(QByteArray::fromHex(name.toLatin1()));
}

QImage fileIcon(const QUrl& file, int size, const FileIcons& icons, ImageDecoder& decoder) {
    const QString found = icons.find(iconNames(file), size);
    if (!found.isEmpty()) {
        const QImage icon = decoder.icon(PictureFile{QFile::encodeName(found)}, size);
        if (!icon.isNull()) {
            return centred(icon, size);
        }
    }
    return filePage(QFileInfo(file.fileName()).suffix(), size);
}

} // namespace ravelo
