#pragma once

#include "platform/x11/connection/Connection.h"

#include <array>
#include <cstdint>
#include <vector>

namespace ravelo::x11 {

/// Which keys there are, as the core protocol tells; two round trips to make. A value.
class KeyMap {
public:
    explicit KeyMap(Connection& connection);

    /// Of a key that makes this symbol, in the first layout without Shift if there is one; 0 if
    /// there is none.
    [[nodiscard]] xcb_keycode_t codeOf(uint32_t keysym) const;

    /// Of the key that makes this symbol in the layout which is active in this state of the
    /// keyboard. If that layout has no such symbol, of one that makes it in another: programs then
    /// take shortcuts from there. 0 also if the core protocol does not tell which key it is.
    [[nodiscard]] xcb_keycode_t codeOf(uint32_t keysym, uint16_t state) const;

    /// The modifiers that a key of this symbol sets; 0 if none.
    [[nodiscard]] uint16_t maskOf(uint32_t keysym) const;

    /// Whether a key that sets a modifier is among those that are down.
    [[nodiscard]] bool hasModifier(const xcb_query_keymap_reply_t& down) const;

    /// Whether this state of the keyboard has a modifier, held, latched or locked, besides Caps
    /// Lock, Num Lock and Scroll Lock.
    [[nodiscard]] bool hasModifier(uint16_t state) const;

    /// The modifiers of Caps Lock, Num Lock and Scroll Lock; 0 for one that there is none of.
    [[nodiscard]] std::array<uint16_t, 3> locks() const;

private:
    /// Of the keys that make this symbol, by columns from first to last (exclusive).
    [[nodiscard]] std::vector<xcb_keycode_t> codesOf(uint32_t keysym, int first, int last) const;

    xcb_keycode_t first_;
    /// Symbols per key: two layouts, each without and with Shift; then everything else, such that
    /// what belongs to which layout differs from key to key.
    int columns_ = 0;
    std::vector<uint32_t> keysyms_; ///< Key by key.
    int keysPerModifier_ = 0;
    std::vector<xcb_keycode_t> modifiers_; ///< Of each of the eight modifiers; 0 for none.
};

} // namespace ravelo::x11
