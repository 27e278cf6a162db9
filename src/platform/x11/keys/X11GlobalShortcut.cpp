#include "platform/x11/keys/X11GlobalShortcut.h"

#include <X11/keysym.h>

#include <utility>

namespace ravelo::x11 {

namespace {

uint16_t maskOf(const KeyMap& map, Qt::KeyboardModifiers modifiers) {
    const std::pair<Qt::KeyboardModifier, uint16_t> masks[] = {
        {Qt::ShiftModifier, uint16_t(XCB_MOD_MASK_SHIFT)},
        {Qt::ControlModifier, uint16_t(XCB_MOD_MASK_CONTROL)},
        {Qt::AltModifier, map.maskOf(XK_Alt_L)},
        {Qt::MetaModifier, map.maskOf(XK_Super_L)}};
    uint16_t mask = 0;
    for (const auto& [modifier, bits] : masks) {
        if (modifiers & modifier) {
            mask |= bits;
        }
    }
    return mask;
}

/// With every combination of the locks.
std::vector<uint16_t> withLocks(const KeyMap& map, uint16_t mask) {
    std::vector<uint16_t> masks{mask};
    for (const uint16_t lock :
         {uint16_t(XCB_MOD_MASK_LOCK), map.maskOf(XK_Num_Lock), map.maskOf(XK_Scroll_Lock)}) {
        for (size_t at = 0, count = masks.size(); lock != 0 && at < count; ++at) {
            masks.push_back(masks[at] | lock);
        }
    }
    return masks;
}

} // namespace

X11GlobalShortcut::X11GlobalShortcut(Connection& connection, Events& events)
    : connection_(connection),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {}

X11GlobalShortcut::~X11GlobalShortcut() {
    release();
}

void X11GlobalShortcut::set(const std::optional<KeyCombination>& keys) {
    release();
    keys_ = keys;
    if (!suspended_) {
        state_ = keys_ ? grab() : State::none;
        changes_.notify();
    }
}

Handle X11GlobalShortcut::suspend() {
    suspended_ = true;
    release();
    return Handle([this] {
        suspended_ = false;
        set(keys_);
    });
}

GlobalShortcut::State X11GlobalShortcut::grab() {
    const KeyMap map(connection_);
    const uint16_t mask = maskOf(map, keys_->modifiers);
    code_ = map.codeOf(keys_->keysym());
    if (code_ == 0 || (mask == 0 && keys_->modifiers != Qt::NoModifier)) {
        code_ = 0;
        return State::refused;
    }
    modifiers_ = withLocks(map, mask);
    std::vector<xcb_void_cookie_t> cookies;
    for (const uint16_t modifiers : modifiers_) {
        cookies.push_back(xcb_grab_key_checked(connection_.get(), 1, connection_.root(), modifiers,
                                               code_, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool taken = false;
    for (const xcb_void_cookie_t cookie : cookies) {
        const Owned<xcb_generic_error_t> error(xcb_request_check(connection_.get(), cookie));
        taken = taken || error;
    }
    if (taken) {
        release(); // Of no use with some locks only.
    }
    return taken ? State::taken : State::registered;
}

void X11GlobalShortcut::release() {
    if (const xcb_keycode_t code = std::exchange(code_, xcb_keycode_t(0)); code != 0) {
        for (const uint16_t modifiers : modifiers_) {
            xcb_ungrab_key(connection_.get(), code, connection_.root(), modifiers);
        }
        xcb_flush(connection_.get());
    }
}

void X11GlobalShortcut::handle(const xcb_generic_event_t& event) {
    if (const auto* mapping = eventAs<xcb_mapping_notify_event_t>(event, XCB_MAPPING_NOTIFY)) {
        if (keys_ && mapping->request != XCB_MAPPING_POINTER) {
            set(keys_); // The key may be another one now.
        }
    } else if (const auto* up = eventAs<xcb_key_release_event_t>(event, XCB_KEY_RELEASE)) {
        released_ = up->time;
    } else if (const auto* down = eventAs<xcb_key_press_event_t>(event, XCB_KEY_PRESS)) {
        // A key that repeats is released and pressed at the same time.
        if (code_ != 0 && down->detail == code_ && down->time != released_) {
            presses_.notify({});
        }
    }
}

} // namespace ravelo::x11
