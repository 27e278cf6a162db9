#include "ui/shelf/FileDrag.h"

#include "base/FileUrl.h"
#include "platform/DetachedJobs.h"
#include "platform/FileIcons.h"
#include "platform/ImageDecoder.h"
#include "ui/images/FilePage.h"
#include "ui/images/FileThumb.h"

#include <QFileInfo>
#include <QMimeData>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double iconSize = 56;
constexpr double step = 2;        ///< Offset between icons.
constexpr qsizetype maxIcons = 8; ///< More would be hidden behind these.

/// RFC 2483.
QByteArray uriList(const QList<QUrl>& files) {
    QByteArray list;
    for (const QUrl& file : files) {
        list += fileAddress(file) + "\r\n";
    }
    return list;
}

/// Placeholder for icons that are not ready yet.
QList<QImage> pages(const QList<QUrl>& files, int size) {
    QList<QImage> pages;
    for (const QUrl& file : files.first(std::min(files.size(), maxIcons))) {
        pages.append(filePage(QFileInfo(file.fileName()).suffix(), size));
    }
    return pages;
}

/// Stacked icons, each a little further up and to the right.
QImage fanned(const QList<QImage>& icons, double scale) {
    const double spread = step * static_cast<double>(std::max<qsizetype>(icons.size() - 1, 0));
    const double side = (iconSize + spread) * scale;
    QImage fan(QSizeF(side, side).toSize(), QImage::Format_ARGB32_Premultiplied);
    fan.fill(Qt::transparent);
    QPainter painter(&fan);
    for (qsizetype i = icons.size() - 1; i >= 0; --i) {
        const double offset = step * static_cast<double>(i);
        painter.drawImage(QPointF(offset, spread - offset) * scale, icons[i]);
    }
    painter.end();
    fan.setDevicePixelRatio(scale);
    return fan;
}

} // namespace

FileDrag::FileDrag(DetachedJobs& jobs, std::shared_ptr<const FileIcons> icons,
                   std::shared_ptr<ImageDecoder> decoder)
    : jobs_(jobs), icons_(std::move(icons)), decoder_(std::move(decoder)) {}

void FileDrag::prepare(const QList<QUrl>& files, QQuickItem* from) {
    if (files == prepared_ || preparing_) { // A second lookup would hang like the first.
        return;
    }
    prepared_ = files;
    pictures_.clear();
    const auto pictures = std::make_shared<QList<QImage>>();
    auto job = [pictures, files = files.first(std::min(files.size(), maxIcons)), icons = icons_,
                decoder = decoder_, size = qRound(iconSize * scaleOf(*from))] {
        for (const QUrl& file : files) {
            pictures->append(fileIcon(file, size, *icons, *decoder));
        }
    };
    preparing_ = jobs_.run(std::move(job), [this, pictures] {
        preparing_.reset();
        pictures_ = *pictures;
    });
}

void FileDrag::start(const QList<QUrl>& files, QQuickItem* from) {
    from->ungrabMouse();
    if (files.isEmpty() || isDragging()) {
        return;
    }
    setDragging(true);
    // Deferred: a drag runs its own event loop, in which the pressed item may be deleted.
    QMetaObject::invokeMethod(
        this, [this, files, scale = scaleOf(*from)] { dragFiles(files, scale); },
        Qt::QueuedConnection);
}

void FileDrag::dragFiles(const QList<QUrl>& files, double scale) {
    const int size = qRound(iconSize * scale);
    const bool ready = files == prepared_ && !pictures_.isEmpty();
    const QImage fan = fanned(ready ? pictures_ : pages(files, size), scale);
    auto* data = new QMimeData;
    data->setData(u"text/uri-list"_s, uriList(files));
    drag(data, fan, {iconSize / 2, fan.height() / scale - iconSize / 2});
}

} // namespace ravelo
