#include "panel/NotchShape.h"

#include <algorithm>

namespace ravelo {

QPainterPath notchShape(QSizeF size, double flare, double bottomRadius) {
    const double w = size.width();
    const double h = size.height();
    const double f = std::min(w / 2, flare);
    const double r = std::min({h / 2, (w - 2 * f) / 2, bottomRadius});

    QPainterPath path(QPointF(0, 0));
    path.lineTo(w, 0);
    path.quadTo(w - f, 0, w - f, f);
    path.lineTo(w - f, h - r);
    path.quadTo(w - f, h, w - f - r, h);
    path.lineTo(f + r, h);
    path.quadTo(f, h, f, h - r);
    path.lineTo(f, f);
    path.quadTo(f, 0, 0, 0);
    path.closeSubpath();
    return path;
}

QPainterPath panelOutline(QSizeF size) {
    return notchShape(size, 18, 42);
}

QPainterPath handleOutline(QSizeF size) {
    return notchShape(size, 6, 8);
}

QPainterPath barOutline(QSizeF size, double notch) {
    return notchShape(size, 8, notch > 0 ? 14 : 12);
}

} // namespace ravelo
