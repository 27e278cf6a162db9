#include "platform/x11/OutlineRegion.h"

#include <QPolygonF>
#include <QTransform>

namespace ravelo::x11 {

QRegion outlineRegion(const QPainterPath& outline, double scale) {
    const QPolygonF polygon = outline.toFillPolygon(QTransform::fromScale(scale, scale));
    return QRegion(polygon.toPolygon(), Qt::WindingFill);
}

} // namespace ravelo::x11
