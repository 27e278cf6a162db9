#include "ui/paint/NotchFill.h"

#include "panel/NotchShape.h"

#include <QPainterPath>

namespace ravelo {

NotchFill::NotchFill(QQuickItem* parent) : PaintedItem(parent) {
    connect(this, &PaintedItem::changed, this, [this] { image_ = {}; });
}

void NotchFill::geometryChange(const QRectF& now, const QRectF& before) {
    PaintedItem::geometryChange(now, before);
    if (now.size() != before.size()) {
        Q_EMIT changed();
    }
}

// Cached as an image: the bar repaints once a second, and filling an outline wakes several threads.
void NotchFill::paint(QPainter& painter) {
    const double scale = painter.device()->devicePixelRatio();
    if (image_.isNull() || image_.devicePixelRatio() != scale) {
        image_ = QImage((size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image_.setDevicePixelRatio(scale);
        image_.fill(Qt::transparent);
        QPainter filling(&image_);
        filling.setRenderHint(QPainter::Antialiasing);
        filling.fillPath(notchShape(size(), flare_, bottomRadius_), color_);
    }
    painter.drawImage(QPointF(0, 0), image_);
}

} // namespace ravelo
