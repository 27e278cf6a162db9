#include "platform/x11/pointer/RawInput.h"

#include <xcb/xinput.h>

namespace ravelo::x11 {

namespace {

constexpr uint32_t buttonEvents =
    XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;

constexpr uint32_t middleButton = 2;

/// 4 and above are the directions of wheels.
constexpr uint32_t lastButton = 3;

} // namespace

std::optional<PointerSight> look(Connection& connection) {
    const auto cookie = xcb_query_pointer(connection.get(), connection.root());
    const Owned<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection.get(), cookie, nullptr));
    if (!reply) {
        return std::nullopt;
    }
    constexpr int buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    return PointerSight{{reply->root_x, reply->root_y},
                        (reply->mask & buttons) != 0,
                        (reply->mask & XCB_BUTTON_MASK_1) != 0};
}

RawInput::RawInput(Connection& connection, Callbacks callbacks)
    : connection_(connection), alarm_(connection), callbacks_(std::move(callbacks)) {
    listenTo(Motion::ignored);
    xcb_flush(connection.get());
}

void RawInput::awaitActivity(std::optional<PointerSight> seen) {
    awaiting_ = true;
    seen_ = seen;
    listenTo(Motion::heard);
    if (pressed_ || (seen && look(connection_) != seen)) {
        active();
    }
}

void RawInput::stopAwaiting() {
    if (awaiting_) {
        awaiting_ = false;
        listenTo(Motion::ignored);
    }
}

void RawInput::handle(const xcb_generic_event_t& event) {
    if (alarm_.isNotice(event)) {
        // A wheel ends the pointer's idleness too.
        if (awaiting_ && look(connection_) != seen_) {
            active();
        }
        return;
    }
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if (event.response_type != XCB_GE_GENERIC || generic.extension != connection_.xinputOpcode()) {
        return;
    }
    if (generic.event_type == XCB_INPUT_RAW_MOTION) {
        active();
        return;
    }
    const auto button = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event).detail;
    if (button > lastButton) {
        return;
    }
    if (generic.event_type == XCB_INPUT_RAW_BUTTON_PRESS) {
        pressed_ = true;
        if (button != middleButton) {
            callbacks_.pressed(look(connection_)); // Here: the main thread may be late.
        }
    }
    active();
}

void RawInput::active() {
    if (awaiting_) {
        stopAwaiting();
        callbacks_.active();
    }
}

void RawInput::listenTo(Motion motion) {
    struct {
        xcb_input_event_mask_t head;
        uint32_t mask;
    } selection = {{XCB_INPUT_DEVICE_ALL_MASTER, 1}, buttonEvents};

    if (motion == Motion::heard) {
        selection.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    }
    xcb_input_xi_select_events(connection_.get(), connection_.root(), 1, &selection.head);
    alarm_.set(motion == Motion::heard ? IdleAlarm::Switch::on : IdleAlarm::Switch::off);
}

} // namespace ravelo::x11
