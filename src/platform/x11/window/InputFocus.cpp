#include "platform/x11/window/InputFocus.h"

#include <utility>

namespace ravelo::x11 {

namespace {

xcb_window_t makeClock(Connection& connection) {
    const xcb_window_t window = xcb_generate_id(connection.get());
    const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &mask);
    return window;
}

} // namespace

InputFocus::InputFocus(Connection& connection, Events& events)
    : connection_(connection),
      clock_(makeClock(connection)),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {}

InputFocus::~InputFocus() {
    xcb_destroy_window(connection_.get(), clock_);
    xcb_flush(connection_.get());
}

void InputFocus::borrow(xcb_window_t window) {
    const auto owner = current();
    if (!owner || owner->window == window) {
        return;
    }
    previous_ = owner;
    asking_ = window;
    xcb_change_property(connection_.get(), XCB_PROP_MODE_APPEND, clock_, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(connection_.get());
}

void InputFocus::giveBack(xcb_window_t window) {
    asking_ = XCB_WINDOW_NONE;
    const auto previous = std::exchange(previous_, std::nullopt);
    if (!previous) {
        return;
    }
    const auto owner = current();
    if (!owner || owner->window != window) {
        return;
    }
    const Owner next = canTakeFocus(previous->window)
                           ? *previous
                           : Owner{XCB_INPUT_FOCUS_POINTER_ROOT, XCB_INPUT_FOCUS_POINTER_ROOT};
    xcb_set_input_focus(connection_.get(), next.revertTo, next.window, borrowedAt_);
    xcb_flush(connection_.get());
}

std::optional<xcb_window_t> InputFocus::next(const OwnClient& own) {
    auto owner = current();
    if (owner && own.owns(owner->window)) {
        owner = previous_;
    }
    return owner && owner->window > XCB_INPUT_FOCUS_POINTER_ROOT ? std::optional(owner->window)
                                                                 : std::nullopt;
}

std::optional<InputFocus::Owner> InputFocus::current() {
    const auto cookie = xcb_get_input_focus(connection_.get());
    const Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection_.get(), cookie, nullptr));
    return reply ? std::optional(Owner{reply->focus, reply->revert_to}) : std::nullopt;
}

bool InputFocus::canTakeFocus(xcb_window_t window) {
    if (window == XCB_INPUT_FOCUS_NONE || window == XCB_INPUT_FOCUS_POINTER_ROOT) {
        return true;
    }
    const auto cookie = xcb_get_window_attributes(connection_.get(), window);
    const Owned<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(connection_.get(), cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

void InputFocus::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change == nullptr || change->window != clock_ || asking_ == XCB_WINDOW_NONE) {
        return;
    }
    borrowedAt_ = change->time;
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_POINTER_ROOT,
                        std::exchange(asking_, XCB_WINDOW_NONE), borrowedAt_);
    xcb_flush(connection_.get());
}

} // namespace ravelo::x11
