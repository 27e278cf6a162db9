#include "ui/setup/WelcomePicture.h"

#include "panel/NotchShape.h"

#include <QPainterPath>

namespace ravelo {

namespace {

constexpr double fullWidth = 320;
constexpr double fullHeight = 186;

QColor faded(QRgb color, double strength) {
    QColor result(color);
    result.setAlphaF(static_cast<float>(strength));
    return result;
}

QColor white(double strength) {
    return faded(qRgb(255, 255, 255), strength);
}

QPainterPath rounded(const QRectF& rect, double radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QPainterPath desktop() {
    return rounded({0, 0, fullWidth, fullHeight}, 14);
}

void paintDesktop(QPainter& painter) {
    QLinearGradient sky(0, 0, 1, 1);
    sky.setCoordinateMode(QGradient::ObjectMode);
    sky.setColorAt(0, qRgb(0x33, 0x42, 0x7f));
    sky.setColorAt(0.55, qRgb(0x8c, 0x5a, 0x86));
    sky.setColorAt(1, qRgb(0xe3, 0x9a, 0x74));
    painter.fillPath(desktop(), sky);

    QPainterPath hill(QPointF(0, 150));
    hill.quadTo(80, 116, 160, 142);
    hill.quadTo(240, 168, 320, 128);
    hill.lineTo(320, fullHeight);
    hill.lineTo(0, fullHeight);
    painter.fillPath(hill & desktop(), faded(qRgb(0x2a, 0x23, 0x50), 0.65));

    QPainterPath bar;
    bar.addRect(0, 0, fullWidth, 10);
    painter.fillPath(bar & desktop(), faded(qRgb(0x0b, 0x0d, 0x16), 0.45));
}

void paintPanel(QPainter& painter) {
    const auto block = [&painter](const QRectF& rect, double radius, const QColor& color) {
        painter.fillPath(rounded(rect, radius), color);
    };
    painter.fillPath(notchShape({196, 104}, 7, 16).translated(62, 0),
                     faded(qRgb(0x10, 0x10, 0x14), 0.93));
    block({80, 13, 56, 8}, 4, white(0.16));
    block({234, 13, 8, 8}, 4, white(0.28));
    block({223, 13, 8, 8}, 4, faded(qRgb(0xff, 0x7a, 0x70), 0.80));
    block({212, 13, 8, 8}, 4, faded(qRgb(0xa9, 0xa5, 0xff), 0.85));
    block({80, 28, 160, 9}, 4, white(0.09));
    block({81, 29, 52, 7}, 3.5, white(0.30));
    block({80, 44, 10, 10}, 3, qRgb(0xf6, 0xc8, 0x51));
    block({96, 46, 104, 5}, 2.5, white(0.72));
    block({80, 60, 10, 10}, 3, white(0.26));
    block({96, 62, 128, 5}, 2.5, white(0.42));
    block({80, 76, 10, 10}, 3, white(0.26));
    block({96, 78, 84, 5}, 2.5, white(0.42));
}

void paintPointer(QPainter& painter) {
    QPolygonF arrow;
    QPointF corner(160, 2);
    for (const QPointF& step :
         {QPointF(0, 0), QPointF(0, 14), QPointF(3.8, -3.5), QPointF(2.4, 5.4), QPointF(2.4, -1.1),
          QPointF(-2.4, -5.2), QPointF(5.1, 0)}) {
        corner += step;
        arrow.append(corner);
    }
    painter.setPen(QPen(Qt::white, 1.1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(QColor(qRgb(0x11, 0x11, 0x11)));
    painter.drawPolygon(arrow);
}

} // namespace

void WelcomePicture::paint(QPainter& painter) {
    paintDesktop(painter);
    paintPanel(painter);
    painter.strokePath(rounded({0.5, 0.5, fullWidth - 1, fullHeight - 1}, 13.5),
                       QPen(white(0.10), 1));
    paintPointer(painter);
}

} // namespace ravelo
