#pragma once

#include "platform/EdgeBarrier.h"
#include "platform/x11/connection/Connection.h"

#include <QPoint>

#include <xcb/xfixes.h>

#include <functional>
#include <vector>

namespace ravelo::x11 {

/// Pointer barriers (XFixes 5), one below and one at each side: they hold relative motion, also
/// under another client's grab, but no pointer that a program warps. The server removes them with
/// our connection. Main thread.
class X11EdgeBarrier final : public EdgeBarrier {
public:
    /// From global logical pixels to the server's.
    using ToNative = std::function<QPoint(QPointF)>;

    /// The connection must outlive it and the handles.
    X11EdgeBarrier(Connection& connection, ToNative toNative)
        : connection_(connection), toNative_(std::move(toNative)) {}

    /// Always: we connect only to servers with barriers.
    [[nodiscard]] bool isTrusted() override { return !connection_.isBroken(); }

    /// Two round trips.
    [[nodiscard]] Result<Handle> hold(QRectF strip) override;

private:
    /// A line that can be crossed in the allowed direction only.
    struct Barrier {
        QPoint from;
        QPoint to;
        xcb_xfixes_barrier_directions_t allowed;
    };

    [[nodiscard]] Result<Handle> make(const std::vector<Barrier>& barriers);

    Connection& connection_;
    ToNative toNative_;
};

} // namespace ravelo::x11
