#include "ui/paint/SlantedLine.h"

namespace ravelo {

void SlantedLine::paint(QPainter& painter) {
    const double inset = lineWidth_ / 2;
    const QRectF line = boundingRect().adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(color_, lineWidth_, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line.bottomLeft(), line.topRight());
}

} // namespace ravelo
