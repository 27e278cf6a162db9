#include "ui/paint/Ring.h"

namespace ravelo {

/// In strips: Qt (6.4 at least) hands a path of about a hundred spans to other threads, and a timer
/// that runs all day would wake them every second.
void Ring::paint(QPainter& painter) {
    constexpr int strip = 4;
    const QRectF whole = boundingRect();
    for (int top = 0; top < whole.height(); top += strip) {
        painter.save();
        painter.setClipRect(QRectF(0, top, whole.width(), strip), Qt::IntersectClip);
        paintWhole(painter);
        painter.restore();
    }
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
