#include "app/StatusIcon.h"

#include <QPainter>

#include <algorithm>

namespace ravelo {

namespace {

constexpr double canvas = 18;

/// On the canvas, whose origin is at the bottom left: y grows upwards.
struct Shape {
    QRectF place;
    double radius;
    double stroke; ///< 0 if it is filled.
};

constexpr Shape shapes[] = {
    {{2.0, 3.5, 14.0, 11.5}, 3.2, 1.5}, // The screen,
    {{5.5, 12.2, 7.0, 2.8}, 1.4, 0},    // its notch,
    {{5.0, 6.2, 8.0, 2.2}, 1.1, 0},     // and what the panel holds.
};

} // namespace

void drawStatusIcon(QPainter& painter, QSizeF size, const QColor& foreground) {
    const double side = std::min(size.width(), size.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((size.width() - side) / 2, (size.height() - side) / 2);
    painter.scale(side / canvas, side / canvas);
    for (const Shape& shape : shapes) {
        QRectF place = shape.place;
        place.moveTop(canvas - place.y() - place.height());
        painter.setPen(shape.stroke > 0 ? QPen(foreground, shape.stroke) : QPen(Qt::NoPen));
        painter.setBrush(shape.stroke > 0 ? QBrush(Qt::NoBrush) : QBrush(foreground));
        painter.drawRoundedRect(place, shape.radius, shape.radius);
    }
    painter.restore();
}

} // namespace ravelo
