#include "platform/wayland/keys/VirtualKeyboard.h"

#include "base/Descriptor.h"

#include <chrono>
#include <string_view>

#include <sys/mman.h>
#include <unistd.h>

namespace ravelo::wayland {

namespace {

constexpr std::string_view keymap = R"(xkb_keymap {
xkb_keycodes "paste" { minimum = 8; maximum = 255; <LCTL> = 37; <LFSH> = 50; <AB04> = 55; <INS> = 118; };
xkb_types "paste" { include "complete" };
xkb_compatibility "paste" { include "complete" };
xkb_symbols "paste" {
key <LCTL> { [ Control_L ] }; key <LFSH> { [ Shift_L ] };
key <AB04> { [ v, V ] }; key <INS> { [ Insert ] };
modifier_map Control { <LCTL> }; modifier_map Shift { <LFSH> };
};
};
)";

/// With its terminator, as the protocol wants it.
Descriptor keymapFile() {
    Descriptor file(memfd_create("ravelo-keymap", MFD_CLOEXEC));
    const ssize_t written = write(file.number(), keymap.data(), keymap.size());
    if (written != ssize_t(keymap.size()) ||
        ftruncate(file.number(), ssize_t(keymap.size()) + 1) != 0) {
        return {};
    }
    return file;
}

uint32_t now() {
    using namespace std::chrono;
    return uint32_t(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

} // namespace

void VirtualKeyboard::type(const Globals& globals, wl_seat& seat, Key key, uint32_t modifiers) {
    const Descriptor file = keymapFile();
    const Owned<zwp_virtual_keyboard_manager_v1> manager(
        globals.bind<zwp_virtual_keyboard_manager_v1>(zwp_virtual_keyboard_manager_v1_interface,
                                                      1));
    if (!manager || !file) {
        return;
    }
    const Owned<zwp_virtual_keyboard_v1> keyboard(
        zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(manager.get(), &seat));
    zwp_virtual_keyboard_v1_keymap(keyboard.get(), WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.number(),
                                   uint32_t(keymap.size()) + 1);
    zwp_virtual_keyboard_v1_modifiers(keyboard.get(), modifiers, 0, 0, 0);
    zwp_virtual_keyboard_v1_key(keyboard.get(), now(), key, WL_KEYBOARD_KEY_STATE_PRESSED);
    zwp_virtual_keyboard_v1_key(keyboard.get(), now(), key, WL_KEYBOARD_KEY_STATE_RELEASED);
    zwp_virtual_keyboard_v1_modifiers(keyboard.get(), 0, 0, 0, 0);
}

} // namespace ravelo::wayland
