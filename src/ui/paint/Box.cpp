#include "ui/paint/Box.h"

#include "ui/paint/Strips.h"

#include <QtMath>

#include <algorithm>

namespace ravelo {

namespace {

// Of device pixels, so that none of them has too many spans.
constexpr int cornerRows = 10;
constexpr int sideRows = 30;

} // namespace

void Box::paint(QPainter& painter) {
    const QRect all = boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1);
    const int corner = qCeil(std::max(shownRadius(), lineWidth_)) + 1;
    const QRect middle = all.adjusted(0, corner, 0, -corner);
    const auto rounded = [&] {
        paintRounded(painter);
    };
    if (middle.isEmpty() || dash_ > 0) {
        inStrips(painter, all, cornerRows, rounded);
        return;
    }
    inStrips(painter, QRect(all.left(), all.top(), all.width(), corner), cornerRows, rounded);
    inStrips(painter, middle, sideRows, [&] { paintSides(painter); });
    inStrips(painter, QRect(all.left(), middle.bottom() + 1, all.width(), corner), cornerRows,
             rounded);
}

void Box::paintRounded(QPainter& painter) const {
    const QRectF rect = boundingRect();
    const double radius = shownRadius();
    if (color_.alpha() > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill());
        painter.drawRoundedRect(rect, radius, radius);
    }
    if (hasLine()) {
        const double half = lineWidth_ / 2;
        painter.setPen(pen());
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius - half,
                                radius - half);
    }
}

/// The same between the corners.
void Box::paintSides(QPainter& painter) const {
    const QRectF rect = boundingRect();
    if (color_.alpha() > 0) {
        painter.fillRect(rect, fill());
    }
    if (hasLine()) {
        painter.fillRect(QRectF(0, 0, lineWidth_, height()), lineColor_);
        painter.fillRect(QRectF(width() - lineWidth_, 0, lineWidth_, height()), lineColor_);
    }
}

bool Box::hasLine() const {
    return lineWidth_ > 0 && lineColor_.alpha() > 0;
}

double Box::shownRadius() const {
    return std::min({radius_, width() / 2, height() / 2});
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
