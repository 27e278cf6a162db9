#include "ui/FileThumb.h"

#include "base/FileUrl.h"
#include "base/Files.h"
#include "platform/FileIcons.h"
#include "ui/FilePage.h"
#include "ui/HeifImage.h"
#include "ui/ThumbnailProvider.h"

#include <QFileInfo>
#include <QImageReader>
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

/// As wide as the image's shape wants it, within what a tile has room for.
QSize previewSize(QSize natural, double scale) {
    const double width = previewHeight * natural.width() / natural.height();
    return (QSizeF(std::clamp(width, narrowestPreview, widestThumb), previewHeight) * scale)
        .toSize();
}

QImage preview(const QString& path, double scale) {
    const double radius = previewRadius * scale;
    if (const QSize natural = imageSize(path); !natural.isEmpty()) {
        return thumbnail(path, previewSize(natural, scale), radius);
    }
    const QImage heif = heifImage(path, qRound(previewHeight * scale));
    return heif.isNull() ? QImage() : thumbnail(heif, previewSize(heif.size(), scale), radius);
}

/// By the name alone, the most special first.
QStringList iconNames(const QString& path) {
    if (QFileInfo(path).isDir()) {
        return {u"inode-directory"_s, u"folder"_s};
    }
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return {type.iconName(), type.genericIconName()};
}

QImage themedIcon(const QString& path, int size) {
    QImageReader reader(path);
    if (const QSize natural = reader.size(); !natural.isEmpty()) {
        reader.setScaledSize(natural.scaled(size, size, Qt::KeepAspectRatio));
    }
    return reader.read();
}

QImage centred(const QImage& image, int size) {
    QImage square(size, size, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((size - image.width()) / 2, (size - image.height()) / 2, image);
    return square;
}

} // namespace

QImage fileThumb(const QUrl& file, double scale, const FileIcons& icons) {
    const QString path = file.toLocalFile();
    const QString extension = QFileInfo(path).suffix().toLower();
    const bool named = std::ranges::find(imageExtensions, extension) != imageExtensions.end();
    if (named && isRegularFile(filePath(file))) { // From a pipe nothing may ever come.
        if (QImage image = preview(path, scale); !image.isNull()) {
            return image;
        }
    }
    return fileIcon(file, qRound(iconSize * scale), icons);
}

// QML takes addresses apart and puts them together again; letters and digits it leaves alone.
QString fileThumbAddress(const QUrl& file) {
    return u"image://file/"_s + QString::fromLatin1(file.toEncoded().toHex());
}

QUrl fileOfThumb(const QString& name) {
    return QUrl::fromEncoded(QByteArray::fromHex(name.toLatin1()));
}

QImage fileIcon(const QUrl& file, int size, const FileIcons& icons) {
    const QString path = file.toLocalFile();
    const QString found = icons.find(iconNames(path), size);
    if (const QImage icon = found.isEmpty() ? QImage() : themedIcon(found, size); !icon.isNull()) {
        return centred(icon, size);
    }
    return filePage(QFileInfo(path).suffix(), size);
}

} // namespace ravelo
