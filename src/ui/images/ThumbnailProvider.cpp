#include "ui/images/ThumbnailProvider.h"

#include <QPainter>

#include <atomic>
#include <memory>

namespace ravelo {

namespace {

/// Always finishes, or the engine would never free it.
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

} // namespace

QImage rounded(const QImage& picture, double radius) {
    if (picture.isNull()) {
        return {};
    }
    QImage rounded(picture.size(), QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QBrush(picture));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(rounded.rect()), radius, radius);
    return rounded;
}

QQuickImageResponse* ThumbnailProvider::requestImageResponse(const QString& id,
                                                             const QSize& requestedSize) {
    auto* response = new ThumbnailResponse; // The engine deletes it once finished.
    work_.run([=, make = make_] {
        response->finish(response->isWanted() ? make(id, requestedSize) : QImage());
    });
    return response;
}

} // namespace ravelo
