#pragma once

#include <QPainterPath>
#include <QRegion>

namespace ravelo::x11 {

/// The device pixels that `outline`, in logical pixels, covers at this scale.
[[nodiscard]] QRegion outlineRegion(const QPainterPath& outline, double scale);

} // namespace ravelo::x11
