#pragma once

#include "base/Handle.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace ravelo {

/// One monitor, in global logical pixels with y growing downwards.
struct Screen {
    QString id;
    QRectF frame;
    QRectF visibleFrame; ///< `frame` less what bars and docks on this monitor reserve.

    /// The usable areas beside a camera housing at the top edge; a screen without one has neither.
    std::optional<QRectF> leftOfNotch;
    std::optional<QRectF> rightOfNotch;

    friend bool operator==(const Screen&, const Screen&) = default;
};

/// The monitors of the session. Main thread.
class Screens {
public:
    virtual ~Screens() = default;

    /// In the display server's order; may be empty for a moment while monitors change.
    [[nodiscard]] virtual std::vector<Screen> all() const = 0;

    /// The primary monitor: the fallback if the pointer's position is unknown.
    [[nodiscard]] virtual std::optional<Screen> main() const = 0;

    /// Called after monitors were added, removed, moved or resized, or a bar changed its space.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
