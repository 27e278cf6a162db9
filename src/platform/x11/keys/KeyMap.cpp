#include "platform/x11/keys/KeyMap.h"

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

xcb_keycode_t KeyMap::codeOf(uint32_t keysym) const {
    for (int column = 0; column < columns_; ++column) {
        for (size_t at = size_t(column); at < keysyms_.size(); at += size_t(columns_)) {
            if (keysyms_[at] == keysym) {
                return xcb_keycode_t(first_ + at / size_t(columns_));
            }
        }
    }
    return 0;
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

} // namespace ravelo::x11
