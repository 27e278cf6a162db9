#include "ui/ThumbnailProvider.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

namespace ravelo {

namespace {

/// The answer to one request; it finishes however the decoding ends, or it would never be freed.
class ThumbnailResponse final : public QQuickImageResponse {
public:
    [[nodiscard]] QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(image_);
    }

    void finish(const QImage& image) {
        image_ = image;
        Q_EMIT finished();
    }

private:
    QImage image_;
};

} // namespace

QImage thumbnail(const QString& path, QSize size, double radius) {
    QImageReader reader(path);
    const QSize natural = reader.size();
    if (natural.isEmpty() || size.isEmpty()) {
        return {};
    }
    // The part that shows is cut out first: scaling all of a very long picture would fill the
    // memory.
    const QSize part = size.scaled(natural, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QPoint corner((natural.width() - part.width()) / 2,
                        (natural.height() - part.height()) / 2);
    reader.setClipRect(QRect(corner, part));
    reader.setScaledSize(size);
    const QImage picture = reader.read();
    if (picture.isNull()) {
        return {};
    }
    QImage rounded(size, QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QBrush(picture));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(QPointF(0, 0), size), radius, radius);
    return rounded;
}

ThumbnailProvider::ThumbnailProvider(const QDir& folder) : folder_(folder) {
    pool_.setMaxThreadCount(1); // A list of pictures should not take all of the processor.
    pool_.setExpiryTimeout(1000);
}

ThumbnailProvider::~ThumbnailProvider() {
    pool_.waitForDone();
}

QQuickImageResponse* ThumbnailProvider::requestImageResponse(const QString& id,
                                                             const QSize& requestedSize) {
    auto* response = new ThumbnailResponse; // The engine frees it once it has finished.
    const double radius = id.section(u'/', 0, 0).toDouble();
    const QString path = folder_.filePath(QFileInfo(id.section(u'/', 1)).fileName());
    pool_.start([=] { response->finish(thumbnail(path, requestedSize, radius)); });
    return response;
}

} // namespace ravelo
