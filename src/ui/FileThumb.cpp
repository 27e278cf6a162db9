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

#include <fcntl.h>
#include <unistd.h>

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

/// Qt cannot name a file whose name is not UTF-8: a descriptor stands for it.
QImage preview(const QByteArray& path, double scale) {
    if (path.isValidUtf8()) {
        return preview(QString::fromUtf8(path), scale);
    }
    const int file = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file < 0) {
        return {};
    }
    QImage image = preview(u"/proc/self/fd/%1"_s.arg(file), scale);
    ::close(file);
    return image;
}

/// By the name alone, the most special first.
QStringList iconNames(const QUrl& file) {
    if (isFolder(filePath(file))) {
        return {u"inode-directory"_s, u"folder"_s};
    }
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension);
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
    const QByteArray path = filePath(file);
    const QString extension = QFileInfo(file.fileName()).suffix().toLower();
    const bool named = std::ranges::find(imageExtensions, extension) != imageExtensions.end();
    if (named && isRegularFile(path)) { // From a pipe nothing may ever come.
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
    const QString found = icons.find(iconNames(file), size);
    if (const QImage icon = found.isEmpty() ? QImage() : themedIcon(found, size); !icon.isNull()) {
        return centred(icon, size);
    }
    return filePage(QFileInfo(file.fileName()).suffix(), size);
}

} // namespace ravelo
