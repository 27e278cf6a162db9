#include "ui/paint/Box.h"

#include <algorithm>

namespace ravelo {

void Box::paint(QPainter& painter) {
    const QRectF rect = boundingRect();
    const double radius = std::min({radius_, rect.width() / 2, rect.height() / 2});
    if (color_.alpha() > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill());
        painter.drawRoundedRect(rect, radius, radius);
    }
    if (lineWidth_ > 0 && lineColor_.alpha() > 0) {
        const double half = lineWidth_ / 2;
        painter.setPen(pen());
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius - half,
                                radius - half);
    }
}

QPen Box::pen() const {
    QPen pen(lineColor_, lineWidth_);
    if (dash_ > 0) {
        pen.setDashPattern({dash_ / lineWidth_, dash_ / lineWidth_});
        pen.setCapStyle(Qt::RoundCap);
    }
    return pen;
}

QBrush Box::fill() const {
    if (!endColor_.isValid()) {
        return color_;
    }
    QLinearGradient gradient(boundingRect().topLeft(), boundingRect().topRight());
    gradient.setColorAt(0, color_);
    gradient.setColorAt(1, endColor_);
    return gradient;
}

} // namespace ravelo
