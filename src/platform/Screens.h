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

    /// In the display server's order; empty for a moment while monitors are being changed.
    [[nodiscard]] virtual std::vector<Screen> all() const = 0;

    /// The screen that counts where the pointer tells nothing: the primary monitor.
    [[nodiscard]] virtual std::optional<Screen> main() const = 0;

    /// Called after monitors came, went, moved, changed size or scale, or a bar changed its space.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
