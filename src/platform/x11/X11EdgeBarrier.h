#pragma once

#include "platform/EdgeBarrier.h"
#include "platform/x11/Connection.h"

#include <QPoint>

#include <functional>

namespace ravelo::x11 {

/// Pointer barriers (XFixes 5): they hold relative motion, also under another client's grab, but no
/// pointer that a program warps. The server removes them with our connection. Main thread.
class X11EdgeBarrier final : public EdgeBarrier {
public:
    /// From global logical pixels to the server's.
    using ToNative = std::function<QPoint(QPointF)>;

    /// The connection must outlive it and the handles.
    X11EdgeBarrier(Connection& connection, ToNative toNative)
        : connection_(connection), toNative_(std::move(toNative)) {}

    /// Always: a server without barriers is none that we connect to.
    [[nodiscard]] bool isTrusted() override { return !connection_.isBroken(); }

    /// One round trip.
    [[nodiscard]] Result<Handle> hold(QLineF line) override;

private:
    Connection& connection_;
    ToNative toNative_;
};

} // namespace ravelo::x11
