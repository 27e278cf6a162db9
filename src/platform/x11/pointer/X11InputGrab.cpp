#include "platform/x11/pointer/X11InputGrab.h"

#include <memory>

namespace ravelo::x11 {

namespace {

bool isRefused(uint8_t status) {
    return status == XCB_GRAB_STATUS_ALREADY_GRABBED || status == XCB_GRAB_STATUS_FROZEN;
}

/// Sent at the next flush.
class PointerQuestion {
public:
    explicit PointerQuestion(Connection& connection)
        : xcb_(connection.get()),
          cookie_(xcb_grab_pointer(xcb_, 1, connection.root(), 0, XCB_GRAB_MODE_ASYNC,
                                   XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME)) {
        xcb_ungrab_pointer(xcb_, XCB_CURRENT_TIME); // Does nothing to another client's grab.
    }

    ~PointerQuestion() {
        if (!answered_) {
            xcb_discard_reply(xcb_, cookie_.sequence);
        }
    }

    PointerQuestion(const PointerQuestion&) = delete;
    PointerQuestion& operator=(const PointerQuestion&) = delete;

    /// Only once.
    [[nodiscard]] bool isHeld() {
        answered_ = true;
        const Owned<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(xcb_, cookie_, nullptr));
        return reply && isRefused(reply->status);
    }

private:
    xcb_connection_t* xcb_;
    xcb_grab_pointer_cookie_t cookie_;
    bool answered_ = false;
};

bool isKeyboardHeld(Connection& connection) {
    xcb_connection_t* xcb = connection.get();
    const auto cookie = xcb_grab_keyboard(xcb, 1, connection.root(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_ungrab_keyboard(xcb, XCB_CURRENT_TIME);
    const Owned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(xcb, cookie, nullptr));
    return reply && isRefused(reply->status);
}

} // namespace

InputGrab::Answer askWhoHoldsInput(Connection& connection) {
    const auto pointer = std::make_shared<PointerQuestion>(connection);
    return [pointer, &connection] {
        return pointer->isHeld() && isKeyboardHeld(connection);
    };
}

} // namespace ravelo::x11
