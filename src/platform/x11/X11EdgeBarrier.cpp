#include "platform/x11/X11EdgeBarrier.h"

#include <xcb/xfixes.h>

namespace ravelo::x11 {

using namespace Qt::StringLiterals;

Result<Handle> X11EdgeBarrier::hold(QLineF line) {
    const QPoint from = toNative_(line.p1());
    const QPoint to = toNative_(line.p2());
    const xcb_xfixes_barrier_t barrier = xcb_generate_id(connection_.get());
    const auto cookie = xcb_xfixes_create_pointer_barrier_checked(
        connection_.get(), barrier, connection_.root(), static_cast<uint16_t>(from.x()),
        static_cast<uint16_t>(from.y()), static_cast<uint16_t>(to.x()),
        static_cast<uint16_t>(to.y()), XCB_XFIXES_BARRIER_DIRECTIONS_POSITIVE_Y, 0, nullptr);
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection_.get(), cookie));
    if (error || connection_.isBroken()) {
        return failure(u"the X server makes no pointer barrier"_s);
    }
    return Handle([connection = &connection_, barrier] {
        xcb_xfixes_delete_pointer_barrier(connection->get(), barrier);
        xcb_flush(connection->get());
    });
}

} // namespace ravelo::x11
