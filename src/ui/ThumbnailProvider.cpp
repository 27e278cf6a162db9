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
    const QSize covering = natural.scaled(size, Qt::KeepAspectRatioByExpanding);
    reader.setScaledSize(covering);
    const QImage picture = reader.read();
    if (picture.isNull()) {
        return {};
    }
    QImage rounded(size, QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    QBrush brush(picture);
    brush.setTransform(QTransform::fromTranslate((size.width() - covering.width()) / 2.0,
                                                 (size.height() - covering.height()) / 2.0));
    painter.setBrush(brush);
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
