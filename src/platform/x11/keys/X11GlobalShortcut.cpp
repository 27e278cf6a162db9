#include "platform/x11/keys/X11GlobalShortcut.h"

#include <X11/keysym.h>

#include <utility>

namespace ravelo::x11 {

namespace {

/// Nothing if the keyboard lacks one of them: the rest would be another shortcut.
std::optional<uint16_t> maskOf(const KeyMap& map, Qt::KeyboardModifiers modifiers) {
    const std::pair<Qt::KeyboardModifier, uint16_t> masks[] = {
        {Qt::ShiftModifier, uint16_t(XCB_MOD_MASK_SHIFT)},
        {Qt::ControlModifier, uint16_t(XCB_MOD_MASK_CONTROL)},
        {Qt::AltModifier, map.maskOf(XK_Alt_L)},
        {Qt::MetaModifier, map.maskOf(XK_Super_L)}};
    uint16_t mask = 0;
    for (const auto& [modifier, bits] : masks) {
        if (modifiers & modifier) {
            if (bits == 0) {
                return std::nullopt;
            }
            mask |= bits;
        }
    }
    return mask;
}

/// With every combination of the locks.
std::vector<uint16_t> withLocks(const KeyMap& map, uint16_t mask) {
    std::vector<uint16_t> masks{mask};
    for (const uint16_t lock : map.locks()) {
        for (size_t at = 0, count = masks.size(); lock != 0 && at < count; ++at) {
            masks.push_back(masks[at] | lock);
        }
    }
    return masks;
}

} // namespace

X11GlobalShortcut::X11GlobalShortcut(Connection& connection, Events& events)
    : connection_(connection),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    remapped_.setSingleShot(true);
    remapped_.callOnTimeout([this] { followMapping(); });
}

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

X11GlobalShortcut::Place X11GlobalShortcut::place() const {
    const KeyMap map(connection_);
    const auto mask = maskOf(map, keys_->modifiers);
    const xcb_keycode_t code = map.codeOf(keys_->keysym());
    return code != 0 && mask ? Place{code, withLocks(map, *mask)} : Place{};
}

GlobalShortcut::State X11GlobalShortcut::grab() {
    place_ = place();
    if (place_.code == 0) {
        return State::refused;
    }
    grabbed_ = true;
    std::vector<xcb_void_cookie_t> cookies;
    cookies.reserve(place_.modifiers.size());
    for (const uint16_t modifiers : place_.modifiers) {
        cookies.push_back(xcb_grab_key_checked(connection_.get(), 1, connection_.root(), modifiers,
                                               place_.code, XCB_GRAB_MODE_ASYNC,
                                               XCB_GRAB_MODE_ASYNC));
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
    if (std::exchange(grabbed_, false)) {
        for (const uint16_t modifiers : place_.modifiers) {
            xcb_ungrab_key(connection_.get(), place_.code, connection_.root(), modifiers);
        }
        xcb_flush(connection_.get());
    }
}

/// Most changes of the mapping leave our keys where they are.
void X11GlobalShortcut::followMapping() {
    if (keys_ && !suspended_ && place() != place_) {
        set(keys_);
    }
}

void X11GlobalShortcut::handle(const xcb_generic_event_t& event) {
    if (const auto* mapping = eventAs<xcb_mapping_notify_event_t>(event, XCB_MAPPING_NOTIFY)) {
        if (keys_ && mapping->request != XCB_MAPPING_POINTER) {
            remapped_.start(0); // Changes come in bursts.
        }
    } else if (const auto* up = eventAs<xcb_key_release_event_t>(event, XCB_KEY_RELEASE)) {
        released_ = up->time;
    } else if (const auto* down = eventAs<xcb_key_press_event_t>(event, XCB_KEY_PRESS)) {
        // A key that repeats is released and pressed at the same time.
        if (grabbed_ && down->detail == place_.code && down->time != released_) {
            presses_.notify({});
        }
    }
}

} // namespace ravelo::x11
