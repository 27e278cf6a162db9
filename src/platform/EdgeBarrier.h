#pragma once

#include "base/Handle.h"
#include "base/Result.h"

#include <QLineF>

namespace ravelo {

/// Keeps the pointer from crossing a line (on X11 a pointer barrier, XFixes 5). Main thread.
class EdgeBarrier {
public:
    virtual ~EdgeBarrier() = default;

    /// Whether this process may hold the pointer at all; may become true as the program runs.
    [[nodiscard]] virtual bool isTrusted() = 0;

    /// Lets the pointer cross the horizontal `line` (global logical pixels) downwards only, for as
    /// long as the handle lives.
    [[nodiscard]] virtual Result<Handle> hold(QLineF line) = 0;
};

} // namespace ravelo
