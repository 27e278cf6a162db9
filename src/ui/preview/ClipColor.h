#pragma once

#include <QColor>
#include <QString>

namespace ravelo {

/// The color that a text writes as CSS does: #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(), hsl()
/// or hsla(), whole and with commas or spaces. Invalid if it is something else.
[[nodiscard]] QColor colorOf(const QString& text);

} // namespace ravelo
