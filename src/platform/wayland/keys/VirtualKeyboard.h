#pragma once

#include "platform/wayland/connection/Globals.h"

#include <cstdint>

#include <virtual-keyboard-client.h>

namespace ravelo::wayland {

RAVELO_OWNED(zwp_virtual_keyboard_manager_v1, zwp_virtual_keyboard_manager_v1_destroy)
RAVELO_OWNED(zwp_virtual_keyboard_v1, zwp_virtual_keyboard_v1_destroy)

/// A keyboard of our own (virtual-keyboard), with only the keys that paste: neither the user's
/// layout nor the modifiers that they hold matter. On Qt's connection; main thread.
class VirtualKeyboard {
public:
    enum Key : uint32_t { v = 47, insert = 110 }; ///< Codes of evdev.

    enum Modifier : uint32_t { shift = 1, control = 4 };

    [[nodiscard]] static bool isOffered(const Globals& globals) {
        return globals.has(zwp_virtual_keyboard_manager_v1_interface.name);
    }

    /// Types one key with modifiers.
    static void type(const Globals& globals, wl_seat& seat, Key key, uint32_t modifiers);
};

} // namespace ravelo::wayland
