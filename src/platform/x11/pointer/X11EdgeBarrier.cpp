#include "platform/x11/pointer/X11EdgeBarrier.h"

#include "platform/x11/pointer/RawInput.h"

#include <QRect>

#include <algorithm>
#include <limits>

namespace ravelo::x11 {

using namespace Qt::StringLiterals;

namespace {

/// A screen may be narrower than the strip.
uint16_t onRoot(int coordinate) {
    return static_cast<uint16_t>(
        std::clamp<int>(coordinate, 0, std::numeric_limits<uint16_t>::max()));
}

int16_t toWarp(int coordinate) {
    return static_cast<int16_t>(
        std::clamp<int>(coordinate, 0, std::numeric_limits<int16_t>::max()));
}

} // namespace

Result<Handle> X11EdgeBarrier::hold(QRectF strip) {
    const QPoint topLeft = toNative_(strip.topLeft());
    const QPoint bottomRight = toNative_(strip.bottomRight());
    // The pixels that the strip covers. Upwards and to the left the server stops the pointer on the
    // line, downwards and to the right one pixel before it.
    const QRect held(topLeft, bottomRight - QPoint(0, 1));
    auto barriers = make({
        {{held.left(), held.bottom() + 1},
         {held.right(), held.bottom() + 1},
         XCB_XFIXES_BARRIER_DIRECTIONS_POSITIVE_Y},
        {held.topLeft(), held.bottomLeft(), XCB_XFIXES_BARRIER_DIRECTIONS_NEGATIVE_X},
        {held.topRight() + QPoint(1, 0), held.bottomRight() + QPoint(1, 0),
         XCB_XFIXES_BARRIER_DIRECTIONS_POSITIVE_X},
    });
    // Only now: any earlier, it could still enter after the query.
    const auto pointer = barriers ? look(connection_) : std::nullopt;
    if (pointer && held.contains(pointer->location)) {
        xcb_warp_pointer(connection_.get(), XCB_NONE, connection_.root(), 0, 0, 0, 0,
                         toWarp(pointer->location.x()), toWarp(held.bottom() + 1));
        xcb_flush(connection_.get());
    }
    return barriers;
}

Result<Handle> X11EdgeBarrier::make(const std::vector<Barrier>& barriers) {
    xcb_connection_t* const server = connection_.get();
    std::vector<xcb_xfixes_barrier_t> made;
    std::vector<xcb_void_cookie_t> requests;
    for (const Barrier& barrier : barriers) {
        made.push_back(xcb_generate_id(server));
        requests.push_back(xcb_xfixes_create_pointer_barrier_checked(
            server, made.back(), connection_.root(), onRoot(barrier.from.x()),
            onRoot(barrier.from.y()), onRoot(barrier.to.x()), onRoot(barrier.to.y()),
            barrier.allowed, 0, nullptr));
    }
    Handle handle([server, made] {
        for (const xcb_xfixes_barrier_t barrier : made) {
            xcb_xfixes_delete_pointer_barrier(server, barrier);
        }
        xcb_flush(server);
    });
    bool failed = false;
    for (const xcb_void_cookie_t request : requests) {
        const Owned<xcb_generic_error_t> error(xcb_request_check(server, request));
        failed = failed || error;
    }
    if (failed || connection_.isBroken()) {
        return failure(u"the X server makes no pointer barrier"_s);
    }
    return handle;
}

} // namespace ravelo::x11
