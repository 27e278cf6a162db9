#include "ui/paint/Ring.h"

#include "ui/paint/Strips.h"

namespace ravelo {

void Ring::paint(QPainter& painter) {
    inStrips(painter, boundingRect().toAlignedRect(), 4, [&] { paintWhole(painter); });
}

void Ring::paintWhole(QPainter& painter) const {
    constexpr double degree = 16; // QPainter's unit, counter-clockwise.
    const double inset = lineWidth_ / 2;
    const QRectF circle = boundingRect().adjusted(inset, inset, -inset, -inset);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(trackColor_, lineWidth_));
    painter.drawEllipse(circle);
    if (fraction_ > 0) {
        painter.setPen(QPen(color_, lineWidth_, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(circle, qRound(90 * degree), qRound(-fraction_ * 360 * degree));
    }
}

} // namespace ravelo
