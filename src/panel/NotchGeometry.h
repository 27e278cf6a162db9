#pragma once

#include "platform/Screens.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

namespace ravelo {

// Pure geometry of the panel. Lengths are logical pixels, y grows downwards.

inline constexpr QSizeF handleSize(200, 12);
inline constexpr double hotZoneHeight = 14;
inline constexpr double hotZoneHalfWidth = 160;
inline constexpr double dragZoneHeight = 140;
inline constexpr double dragZoneHalfWidth = 300;

/// The panel is at least this much narrower and lower than its screen.
inline constexpr double screenMargin = 20;

/// The collapsed bar that shows a timer or reminders.
struct BarGeometry {
    double width = 0;
    double height = 0;
    double notch = 0; ///< Width to leave free in the middle; 0 if there is no notch.

    friend bool operator==(const BarGeometry&, const BarGeometry&) = default;
};

/// `displayKind` is "auto", "notch" or "none"; anything else counts as "auto".
[[nodiscard]] BarGeometry barGeometry(const Screen& screen, const QString& displayKind);

enum class ShelfContent { none, files };

/// At most the screen less `screenMargin` in both directions.
[[nodiscard]] QSizeF expandedSize(double panelWidth, ShelfContent shelf, const Screen& screen);

/// A box of `size` hanging from the middle of the top edge of `screen`.
[[nodiscard]] QRectF hangingFrame(const Screen& screen, QSizeF size);

/// The first screen under the pointer, else `main`, else the first of all; nothing if there is
/// no screen.
[[nodiscard]] std::optional<Screen> screenFor(std::optional<QPointF> pointer,
                                              const std::vector<Screen>& screens,
                                              const std::optional<Screen>& main);

/// Whether `point` lies within `height` of the top edge and `halfWidth` of its middle, the bounds
/// included. Above the screen counts too: a pointer may be pushed against the edge.
[[nodiscard]] bool isNearTopCentre(QPointF point, const Screen& screen, double height,
                                   double halfWidth);

} // namespace ravelo
