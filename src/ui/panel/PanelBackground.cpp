#include "ui/panel/PanelBackground.h"

#include "panel/NotchShape.h"

#include <QPainterPath>
#include <QtMath>

#include <algorithm>

namespace ravelo {

namespace {

constexpr double flare = 18;
constexpr double bottomRadius = 42;

/// Device pixels between the ends that are kept; the rest of the panel looks the same.
constexpr int slice = 128;

QColor materialColor(Backdrop::Kind backdrop) {
    QColor color(0x14, 0x14, 0x18);
    switch (backdrop) {
    case Backdrop::Blurred:
        color.setAlphaF(0.78F);
        break;
    case Backdrop::Translucent:
        color.setAlphaF(0.94F);
        break;
    case Backdrop::Opaque:
        break;
    }
    return color;
}

QColor black(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
}

QColor white(double opacity) {
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

QLinearGradient darkening(double height, double darkness) {
    QLinearGradient gradient(0, 0, 0, height);
    gradient.setColorAt(0, black(darkness));
    gradient.setColorAt(0.5, black(darkness - 0.35));
    gradient.setColorAt(1, black(darkness - 0.5));
    return gradient;
}

/// A hairline inside the sides and bottom; none at the top, the screen's edge.
void strokeEdge(QPainter& painter, QSizeF size) {
    const double w = size.width();
    const double h = size.height();
    const double f = flare + 0.5;
    QPainterPath edge(QPointF(w, 0.5));
    edge.quadTo(w - f, 0.5, w - f, flare);
    edge.lineTo(w - f, h - bottomRadius);
    edge.quadTo(w - f, h - 0.5, w - flare - bottomRadius, h - 0.5);
    edge.lineTo(flare + bottomRadius, h - 0.5);
    edge.quadTo(f, h - 0.5, f, h - bottomRadius);
    edge.lineTo(f, flare);
    edge.quadTo(f, 0.5, 0, 0.5);
    QLinearGradient light(0, 0.5, 0, h - 0.5);
    light.setColorAt(0, white(0));
    light.setColorAt(0.12, white(0.05));
    light.setColorAt(1, white(0.16));
    painter.strokePath(edge, QPen(light, 1));
}

} // namespace

QImage panelImage(QSizeF size, double scale, const PanelMaterial& material) {
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath outline = notchShape(size, flare, bottomRadius);
    if (material.fullBlack) {
        painter.fillPath(outline, Qt::black);
    } else {
        painter.fillPath(outline, materialColor(material.backdrop));
        painter.fillPath(outline, darkening(size.height(), material.darkness));
    }
    strokeEdge(painter, size);
    return image;
}

void PanelBackground::paint(QPainter& painter) {
    const double scale = painter.device()->devicePixelRatio();
    const PanelMaterial material{backdrop_, darkness_, fullBlack_};
    const int whole = qRound(width() * scale);
    const int end = qCeil((flare + bottomRadius) * scale);
    const int narrow = std::min(whole, 2 * end + slice);
    if (size() != paintedSize_ || image_.devicePixelRatio() != scale || material != painted_) {
        paintedSize_ = size();
        painted_ = material;
        image_ = panelImage({narrow / scale, height()}, scale, material);
    }
    const auto draw = [&](int from, int to, int count) {
        painter.drawImage(QPointF(to / scale, 0), image_, QRectF(from, 0, count, image_.height()));
    };
    const int left = narrow - end; // All but the right end.
    draw(0, 0, left);
    for (int to = left; to < whole - end; to += slice) {
        draw(end, to, std::min(slice, whole - end - to));
    }
    draw(left, whole - end, end);
}

} // namespace ravelo
