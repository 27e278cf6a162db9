#include "platform/x11/pointer/X11InputGrab.h"

namespace ravelo::x11 {

namespace {

bool isRefused(uint8_t status) {
    return status == XCB_GRAB_STATUS_ALREADY_GRABBED || status == XCB_GRAB_STATUS_FROZEN;
}

bool isPointerHeld(Connection& connection) {
    xcb_connection_t* xcb = connection.get();
    const auto cookie = xcb_grab_pointer(xcb, 1, connection.root(), 0, XCB_GRAB_MODE_ASYNC,
                                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    xcb_ungrab_pointer(xcb, XCB_CURRENT_TIME); // Does nothing to another client's grab.
    const Owned<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(xcb, cookie, nullptr));
    return reply && isRefused(reply->status);
}

bool isKeyboardHeld(Connection& connection) {
    xcb_connection_t* xcb = connection.get();
    const auto cookie = xcb_grab_keyboard(xcb, 1, connection.root(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_ungrab_keyboard(xcb, XCB_CURRENT_TIME);
    const Owned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(xcb, cookie, nullptr));
    return reply && isRefused(reply->status);
}

} // namespace

bool isInputHeldByAnother(Connection& connection) {
    return isPointerHeld(connection) && isKeyboardHeld(connection);
}

} // namespace ravelo::x11
