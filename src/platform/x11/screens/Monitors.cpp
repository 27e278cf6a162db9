#include "platform/x11/screens/Monitors.h"

#include <algorithm>

namespace ravelo::x11 {

namespace {

double outside(double value, double begin, double end) {
    return std::max({begin - value, value - end, 0.0});
}

/// The squared distance of `point` from `rect`; a point on the right or bottom edge is outside, but
/// barely, so that the next monitor wins it.
double distance(QPointF point, QRectF rect) {
    const double dx = outside(point.x(), rect.left(), rect.right());
    const double dy = outside(point.y(), rect.top(), rect.bottom());
    const bool onFarEdge = point.x() == rect.right() || point.y() == rect.bottom();
    return dx * dx + dy * dy + (onFarEdge ? 1e-6 : 0);
}

template <typename Frame>
const Monitor* nearest(const std::vector<Monitor>& monitors, QPointF point, Frame frame) {
    const auto found = std::min_element(
        monitors.begin(), monitors.end(), [&](const Monitor& left, const Monitor& right) {
            return distance(point, frame(left)) < distance(point, frame(right));
        });
    return found == monitors.end() ? nullptr : &*found;
}

} // namespace

QPointF toLogical(const std::vector<Monitor>& monitors, QPoint native) {
    const Monitor* monitor =
        nearest(monitors, native, [](const Monitor& each) { return QRectF(each.native); });
    if (monitor == nullptr) {
        return native;
    }
    const QPointF origin = monitor->native.topLeft();
    return monitor->screen.frame.topLeft() + (native - origin) / monitor->scale;
}

QPoint toNative(const std::vector<Monitor>& monitors, QPointF logical) {
    const Monitor* monitor =
        nearest(monitors, logical, [](const Monitor& each) { return each.screen.frame; });
    if (monitor == nullptr) {
        return logical.toPoint();
    }
    const QPointF offset = (logical - monitor->screen.frame.topLeft()) * monitor->scale;
    return monitor->native.topLeft() + offset.toPoint();
}

QRectF toLogical(const Monitor& monitor, QRect native) {
    const QPointF offset = native.topLeft() - monitor.native.topLeft();
    return {monitor.screen.frame.topLeft() + offset / monitor.scale,
            QSizeF(native.size()) / monitor.scale};
}

} // namespace ravelo::x11
