#include "app/StatusIcon.h"

#include <QPainter>

#include <algorithm>
#include <span>

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
constexpr std::span screenAndNotch(shapes, 2);

constexpr double paused = 0.55; ///< Opacity.

void begin(QPainter& painter, QSizeF size) {
    const double side = std::min(size.width(), size.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((size.width() - side) / 2, (size.height() - side) / 2);
    painter.scale(side / canvas, side / canvas);
}

void draw(QPainter& painter, std::span<const Shape> some, const QColor& foreground) {
    for (const Shape& shape : some) {
        QRectF place = shape.place;
        place.moveTop(canvas - place.y() - place.height());
        painter.setPen(shape.stroke > 0 ? QPen(foreground, shape.stroke) : QPen(Qt::NoPen));
        painter.setBrush(shape.stroke > 0 ? QBrush(Qt::NoBrush) : QBrush(foreground));
        painter.drawRoundedRect(place, shape.radius, shape.radius);
    }
}

} // namespace

void drawStatusIcon(QPainter& painter, QSizeF size, const QColor& foreground) {
    begin(painter, size);
    draw(painter, shapes, foreground);
    painter.restore();
}

void drawPausedStatusIcon(QPainter& painter, QSizeF size, const QColor& foreground) {
    begin(painter, size);
    painter.setOpacity(paused);
    draw(painter, screenAndNotch, foreground);
    painter.setOpacity(1);
    painter.setPen(QPen(foreground, 1.9, Qt::SolidLine, Qt::RoundCap));
    for (const double x : {7.0, 11.0}) {
        painter.drawLine(QPointF(x, 7.6), QPointF(x, 12.2));
    }
    painter.restore();
}

} // namespace ravelo
