#include "platform/x11/keys/KeyMap.h"

#include <X11/keysym.h>

#include <algorithm>

namespace ravelo::x11 {

KeyMap::KeyMap(Connection& connection) : first_(xcb_get_setup(connection.get())->min_keycode) {
    xcb_connection_t* xcb = connection.get();
    const auto count = uint8_t(xcb_get_setup(xcb)->max_keycode - first_ + 1);
    const auto mapping = xcb_get_keyboard_mapping(xcb, first_, count);
    const auto modifiers = xcb_get_modifier_mapping(xcb);
    const Owned<xcb_get_keyboard_mapping_reply_t> keys(
        xcb_get_keyboard_mapping_reply(xcb, mapping, nullptr));
    const Owned<xcb_get_modifier_mapping_reply_t> modified(
        xcb_get_modifier_mapping_reply(xcb, modifiers, nullptr));
    if (keys) {
        columns_ = keys->keysyms_per_keycode;
        const xcb_keysym_t* begin = xcb_get_keyboard_mapping_keysyms(keys.get());
        keysyms_.assign(begin, begin + xcb_get_keyboard_mapping_keysyms_length(keys.get()));
    }
    if (modified) {
        keysPerModifier_ = modified->keycodes_per_modifier;
        const xcb_keycode_t* begin = xcb_get_modifier_mapping_keycodes(modified.get());
        modifiers_.assign(begin, begin + xcb_get_modifier_mapping_keycodes_length(modified.get()));
    }
}

std::vector<xcb_keycode_t> KeyMap::codesOf(uint32_t keysym, int first, int last) const {
    std::vector<xcb_keycode_t> codes;
    for (int column = first; column < std::min(last, columns_); ++column) {
        for (size_t at = size_t(column); at < keysyms_.size(); at += size_t(columns_)) {
            if (keysyms_[at] == keysym) {
                codes.push_back(xcb_keycode_t(first_ + at / size_t(columns_)));
            }
        }
    }
    return codes;
}

xcb_keycode_t KeyMap::codeOf(uint32_t keysym) const {
    const auto codes = codesOf(keysym, 0, columns_);
    return codes.empty() ? 0 : codes.front();
}

xcb_keycode_t KeyMap::codeOf(uint32_t keysym, uint16_t state) const {
    const int layout = state >> 13 & 3;
    const bool isShown = layout < 2;
    auto codes = isShown ? codesOf(keysym, 2 * layout, 2 * layout + 2) : decltype(modifiers_){};
    if (codes.empty()) {
        codes = codesOf(keysym, 0, columns_);
    }
    // If only one key makes it in whatever layout, it does not matter which one is active.
    const bool isSure =
        !codes.empty() && (isShown || std::ranges::count(codes, codes[0]) == ssize(codes));
    return isSure ? codes[0] : 0;
}

uint16_t KeyMap::maskOf(uint32_t keysym) const {
    uint16_t mask = 0;
    for (size_t at = 0; at < modifiers_.size(); ++at) {
        const size_t key = modifiers_[at] < first_
                               ? keysyms_.size()
                               : size_t(modifiers_[at] - first_) * size_t(columns_);
        for (size_t column = key; column < key + size_t(columns_) && column < keysyms_.size();
             ++column) {
            if (keysyms_[column] == keysym) {
                mask |= uint16_t(1U << (at / size_t(keysPerModifier_)));
            }
        }
    }
    return mask;
}

bool KeyMap::hasModifier(const xcb_query_keymap_reply_t& down) const {
    for (const xcb_keycode_t key : modifiers_) {
        if (key != 0 && (down.keys[key / 8] >> (key % 8) & 1) != 0) {
            return true;
        }
    }
    return false;
}

bool KeyMap::hasModifier(uint16_t state) const {
    constexpr uint16_t allModifiers = 0xff; // Above are buttons, and the layout.
    uint16_t ignored = 0;
    for (const uint16_t lock : locks()) {
        ignored |= lock;
    }
    return (state & allModifiers & ~ignored) != 0;
}

std::array<uint16_t, 3> KeyMap::locks() const {
    return {uint16_t(XCB_MOD_MASK_LOCK), maskOf(XK_Num_Lock), maskOf(XK_Scroll_Lock)};
}

} // namespace ravelo::x11
