#include "ui/ThumbnailProvider.h"

#include <QImageReader>
#include <QPainter>

#include <atomic>
#include <memory>

namespace ravelo {

namespace {

/// The answer to one request; it finishes however the decoding ends, or it would never be freed.
class ThumbnailResponse final : public QQuickImageResponse {
public:
    [[nodiscard]] QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(image_);
    }

    void cancel() override { wanted_ = false; }

    [[nodiscard]] bool isWanted() const { return wanted_; }

    void finish(const QImage& image) {
        image_ = image;
        Q_EMIT finished();
    }

private:
    QImage image_;
    std::atomic<bool> wanted_ = true;
};

bool isTurned(const QImageReader& reader) {
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

QSize turned(QSize size, const QImageReader& reader) {
    return isTurned(reader) ? size.transposed() : size;
}

QImage rounded(const QImage& picture, QSize size, double radius) {
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

} // namespace

QSize imageSize(const QString& path) {
    const QImageReader reader(path);
    return turned(reader.size(), reader);
}

QImage thumbnail(const QString& path, QSize size, double radius) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize natural = reader.size();
    if (natural.isEmpty() || size.isEmpty()) {
        return {};
    }
    // The part that shows is cut out first: scaling all of a very long picture would fill the
    // memory. A camera that was held upright is turned only after that.
    const QSize scaled = turned(size, reader);
    const QSize part = scaled.scaled(natural, Qt::KeepAspectRatio).expandedTo({1, 1});
    const QPoint corner((natural.width() - part.width()) / 2,
                        (natural.height() - part.height()) / 2);
    reader.setClipRect(QRect(corner, part));
    reader.setScaledSize(scaled);
    return rounded(reader.read(), size, radius);
}

QImage thumbnail(const QImage& image, QSize size, double radius) {
    const QImage wide =
        image.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((wide.width() - size.width()) / 2, (wide.height() - size.height()) / 2);
    return rounded(wide.copy(QRect(corner, size)), size, radius);
}

QQuickImageResponse* ThumbnailProvider::requestImageResponse(const QString& id,
                                                             const QSize& requestedSize) {
    auto* response = new ThumbnailResponse; // The engine frees it once it has finished.
    work_.run([=, make = make_] {
        response->finish(response->isWanted() ? make(id, requestedSize) : QImage());
    });
    return response;
}

} // namespace ravelo
