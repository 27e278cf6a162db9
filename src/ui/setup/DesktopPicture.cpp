#include "ui/setup/DesktopPicture.h"

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

void paintBlock(QPainter& painter, const QRectF& rect, double radius, const QColor& color) {
    painter.fillPath(rounded(rect, radius), color);
}

QPainterPath panelShape() {
    return notchShape({196, 104}, 7, 16).translated(62, 0);
}

/// With a bar of `barStrength` at the top.
void paintDesktop(QPainter& painter, double barStrength) {
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
    painter.fillPath(bar & desktop(), faded(qRgb(0x0b, 0x0d, 0x16), barStrength));
}

/// As GNOME has it.
void paintBar(QPainter& painter) {
    paintBlock(painter, {10, 3.5, 14, 3}, 1.5, white(0.8));
    paintBlock(painter, {290, 3.5, 20, 3}, 1.5, white(0.5));
}

void paintPanel(QPainter& painter) {
    const auto block = [&painter](const QRectF& rect, double radius, const QColor& color) {
        paintBlock(painter, rect, radius, color);
    };
    painter.fillPath(panelShape(), faded(qRgb(0x10, 0x10, 0x14), 0.93));
    block({80, 13, 56, 8}, 4, white(0.16));
    block({80, 28, 160, 9}, 4, white(0.09));
    block({81, 29, 52, 7}, 3.5, white(0.30));
    block({80, 44, 10, 10}, 3, qRgb(0xf6, 0xc8, 0x51));
    block({96, 46, 104, 5}, 2.5, white(0.72));
    block({80, 60, 10, 10}, 3, white(0.26));
    block({96, 62, 128, 5}, 2.5, white(0.42));
    block({80, 76, 10, 10}, 3, white(0.26));
    block({96, 78, 84, 5}, 2.5, white(0.42));
}

void paintButtons(QPainter& painter) {
    paintBlock(painter, {234, 13, 8, 8}, 4, white(0.28));
    paintBlock(painter, {223, 13, 8, 8}, 4, faded(qRgb(0xff, 0x7a, 0x70), 0.80));
    paintBlock(painter, {212, 13, 8, 8}, 4, faded(qRgb(0xa9, 0xa5, 0xff), 0.85));
}

void paintOutline(QPainter& painter) {
    QPen dashes(white(0.34), 1.2, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({5 / 1.2, 5 / 1.2});
    painter.fillPath(panelShape(), faded(qRgb(0x10, 0x10, 0x14), 0.42));
    painter.setClipPath(desktop(), Qt::IntersectClip);
    painter.strokePath(panelShape(), dashes);
    painter.fillRect(QRectF(104, 0, 112, 3), QColor(0x78, 0xae, 0xff));
    paintBlock(painter, {136, 36, 48, 48}, 24, QColor(0x26, 0x26, 0x2b));
    painter.strokePath(rounded({136.5, 36.5, 47, 47}, 23.5), QPen(white(0.16), 1));
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

void DesktopPicture::paint(QPainter& painter) {
    paintDesktop(painter, panel_ == UnderPointer ? 0.45 : 0.75);
    if (panel_ != UnderPointer) {
        paintBar(painter);
    }
    painter.save();
    if (panel_ == Outlined) {
        paintOutline(painter);
    } else {
        paintPanel(painter);
    }
    painter.restore();
    painter.strokePath(rounded({0.5, 0.5, fullWidth - 1, fullHeight - 1}, 13.5),
                       QPen(white(0.10), 1));
    if (panel_ == UnderPointer) {
        paintButtons(painter);
        paintPointer(painter);
    } else if (panel_ == Ready) {
        paintBlock(painter, {142, 86, 36, 36}, 18, QColor(0x4c, 0xd6, 0x8b));
    }
}

} // namespace ravelo
