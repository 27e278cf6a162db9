#pragma once

#include "base/Handle.h"
#include "base/Result.h"

#include <QRectF>

namespace ravelo {

/// Keeps the pointer out of a strip at the top of a screen (on X11 by pointer barriers, XFixes 5).
/// Main thread.
class EdgeBarrier {
public:
    virtual ~EdgeBarrier() = default;

    /// Whether this process may hold the pointer at all; may become true while the program runs.
    [[nodiscard]] virtual bool isTrusted() = 0;

    /// Lets the pointer leave `strip` (global logical pixels) but not enter it from below or from
    /// its sides, as long as the handle lives. A pointer already in it is moved to its lower edge
    /// once. The lower edge is not part of the strip, the left and right edges are.
    [[nodiscard]] virtual Result<Handle> hold(QRectF strip) = 0;
};

} // namespace ravelo
