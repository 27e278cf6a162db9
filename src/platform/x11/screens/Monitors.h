#pragma once

#include "platform/Screens.h"

#include <QPoint>
#include <QRect>

#include <vector>

namespace ravelo::x11 {

/// One monitor in both systems of coordinates. Each monitor is scaled about its own top left,
/// which is the same point in both.
struct Monitor {
    Screen screen;
    QRect native; ///< In the root window's pixels.
    double scale = 1;

    friend bool operator==(const Monitor&, const Monitor&) = default;
};

/// Of a point of the root window, the place in global logical pixels, and back; on the monitor it
/// is on, or else the nearest.
[[nodiscard]] QPointF toLogical(const std::vector<Monitor>& monitors, QPoint native);
[[nodiscard]] QPoint toNative(const std::vector<Monitor>& monitors, QPointF logical);

/// The area `native` (root window) of a monitor, in global logical pixels.
[[nodiscard]] QRectF toLogical(const Monitor& monitor, QRect native);

} // namespace ravelo::x11
