#include "ui/paint/FadingEdge.h"

#include <algorithm>

namespace ravelo {

namespace {

QRect devicePixels(const QPainter& painter, const QRectF& rect) {
    return painter.deviceTransform().mapRect(rect).toAlignedRect();
}

/// Windows are painted as images, pictures of items as pixmaps.
QImage copyOf(const QPaintDevice& target, const QRect& place) {
    switch (target.devType()) {
    case QInternal::Image:
        return static_cast<const QImage&>(target).copy(place);
    case QInternal::Pixmap:
        return static_cast<const QPixmap&>(target).copy(place).toImage();
    default:
        return {};
    }
}

/// Painted above the children.
class Cover final : public PaintedItem {
public:
    Cover(FadingEdge& owner, std::shared_ptr<const QImage> behind)
        : PaintedItem(&owner), owner_(owner), behind_(std::move(behind)) {
        setZ(1000);
    }

protected:
    [[nodiscard]] QRectF paintedRect() const override { return owner_.strip(); }

    void paint(QPainter& painter) override {
        const QRectF strip = owner_.strip();
        const QLinearGradient mask = owner_.mask();
        const QRect place = devicePixels(painter, strip);
        if (behind_->size() != place.size()) {
            return;
        }
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setOpacity(1);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(strip, mask);

        QImage rest = *behind_;
        QPainter eraser(&rest);
        eraser.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        const QTransform toStrip = painter.deviceTransform();
        eraser.setTransform(toStrip * QTransform::fromTranslate(-place.x(), -place.y()));
        eraser.fillRect(strip, mask);
        eraser.end();

        painter.setCompositionMode(QPainter::CompositionMode_Plus);
        painter.drawImage(strip, rest);
    }

private:
    FadingEdge& owner_;
    std::shared_ptr<const QImage> behind_;
};

} // namespace

FadingEdge::FadingEdge(QQuickItem* parent)
    : PaintedItem(parent), behind_(std::make_shared<QImage>()), cover_(new Cover(*this, behind_)) {
    connect(this, &PaintedItem::changed, cover_, &QQuickItem::update);
}

QRectF FadingEdge::strip() const {
    const bool across = edge_ == Left || edge_ == Right;
    const double span = std::min(length_, across ? width() : height());
    switch (edge_) {
    case Left:
        return {0, 0, span, height()};
    case Right:
        return {width() - span, 0, span, height()};
    case Top:
        return {0, 0, width(), span};
    case Bottom:
        break;
    }
    return {0, height() - span, width(), span};
}

QLinearGradient FadingEdge::mask() const {
    const QRectF area = strip();
    QLinearGradient gradient(area.topLeft(),
                             edge_ == Left || edge_ == Right ? area.topRight() : area.bottomLeft());
    if (edge_ == Left || edge_ == Top) {
        const QPointF inner = gradient.finalStop();
        gradient.setFinalStop(gradient.start());
        gradient.setStart(inner);
    }
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::transparent);
    return gradient;
}

void FadingEdge::paint(QPainter& painter) {
    // The cover repaints exactly the same area at the same time.
    *behind_ = copyOf(*painter.device(), devicePixels(painter, strip()))
                   .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    behind_->setDevicePixelRatio(1);
}

void FadingEdge::geometryChange(const QRectF& now, const QRectF& before) {
    PaintedItem::geometryChange(now, before);
    cover_->setSize(now.size());
    Q_EMIT changed();
}

} // namespace ravelo
