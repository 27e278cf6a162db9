#pragma once

#include <QSize>

namespace ravelo::wayland {

/// The part of a screen's top edge that the pointer has to enter: a display server that reports
/// only what happens on surfaces of ours needs one there. Logical pixels.
inline constexpr QSize stripSize(320, 14);

} // namespace ravelo::wayland
