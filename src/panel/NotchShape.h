#pragma once

#include <QPainterPath>
#include <QSizeF>

namespace ravelo {

/// The closed outline of the panel in a box of `size`, y growing downwards: it hangs from the whole
/// top edge, sweeps inwards by `flare` at both top corners and is rounded at the bottom by up to
/// `bottomRadius`. What does not fit the box is made smaller.
[[nodiscard]] QPainterPath notchShape(QSizeF size, double flare, double bottomRadius);

/// The outline of the open panel.
[[nodiscard]] QPainterPath panelOutline(QSizeF size);

/// The outline of the collapsed handle.
[[nodiscard]] QPainterPath handleOutline(QSizeF size);

/// The outline of the collapsed bar, `notch` being the gap in its middle, 0 for none.
[[nodiscard]] QPainterPath barOutline(QSizeF size, double notch);

} // namespace ravelo
