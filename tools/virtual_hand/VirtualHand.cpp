// A pointer and a keyboard for a wlroots compositor, driven by lines on standard input:
//
//   move X Y WIDTH HEIGHT   to a place in the layout of all outputs, which is that large
//   press, release          the left button
//   key CODE [MODIFIERS]    a key of linux/input-event-codes.h; 1 is Shift, 4 is Control
//   wait                    nothing
//
// Says "ready" once both exist, and after each line once the compositor has handled it.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <iostream>
#include <sstream>
#include <string>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <virtual-keyboard-client.h>
#include <virtual-pointer-client.h>
#include <wayland-client.h>

namespace {

constexpr char keymap[] = "xkb_keymap {"
                          " xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
                          " xkb_types { include \"complete\" };"
                          " xkb_compat { include \"complete\" };"
                          " xkb_symbols { include \"pc+us\" };"
                          " };";

struct Hand {
    wl_seat* seat = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
    zwlr_virtual_pointer_v1* pointer = nullptr;
    zwp_virtual_keyboard_v1* keyboard = nullptr;
};

template <typename Object>
void bindIf(Object*& object, wl_registry* registry, uint32_t name, const char* found,
            const wl_interface& interface) {
    if (std::strcmp(found, interface.name) == 0) {
        object = static_cast<Object*>(wl_registry_bind(registry, name, &interface, 1));
    }
}

void bindGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface,
                uint32_t /*version*/) {
    Hand& hand = *static_cast<Hand*>(data);
    bindIf(hand.seat, registry, name, interface, wl_seat_interface);
    bindIf(hand.pointers, registry, name, interface, zwlr_virtual_pointer_manager_v1_interface);
    bindIf(hand.keyboards, registry, name, interface, zwp_virtual_keyboard_manager_v1_interface);
}

uint32_t now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<uint32_t>(time.tv_sec * 1000 + time.tv_nsec / 1000000);
}

void setKeymap(zwp_virtual_keyboard_v1* keyboard) {
    const int file = memfd_create("keymap", MFD_CLOEXEC);
    if (write(file, keymap, sizeof keymap) == sizeof keymap) {
        zwp_virtual_keyboard_v1_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                                       sizeof keymap);
    }
    close(file);
}

void press(const Hand& hand, bool down) {
    zwlr_virtual_pointer_v1_button(hand.pointer, now(), BTN_LEFT, down ? 1 : 0);
    zwlr_virtual_pointer_v1_frame(hand.pointer);
}

void strike(const Hand& hand, uint32_t key, uint32_t modifiers) {
    zwp_virtual_keyboard_v1_modifiers(hand.keyboard, modifiers, 0, 0, 0);
    zwp_virtual_keyboard_v1_key(hand.keyboard, now(), key, 1);
    zwp_virtual_keyboard_v1_key(hand.keyboard, now(), key, 0);
    zwp_virtual_keyboard_v1_modifiers(hand.keyboard, 0, 0, 0, 0);
}

void obey(const Hand& hand, const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    uint32_t numbers[4] = {};
    words >> verb;
    std::ranges::for_each(numbers, [&](uint32_t& number) { words >> number; });
    if (verb == "move") {
        zwlr_virtual_pointer_v1_motion_absolute(hand.pointer, now(), numbers[0], numbers[1],
                                                numbers[2], numbers[3]);
        zwlr_virtual_pointer_v1_frame(hand.pointer);
    } else if (verb == "press" || verb == "release") {
        press(hand, verb == "press");
    } else if (verb == "key") {
        strike(hand, numbers[0], numbers[1]);
    }
}

} // namespace

int main() {
    wl_display* const display = wl_display_connect(nullptr);
    if (display == nullptr) {
        return 1;
    }
    Hand hand;
    const wl_registry_listener listener = {bindGlobal, [](void*, wl_registry*, uint32_t) {
                                           }};
    wl_registry_add_listener(wl_display_get_registry(display), &listener, &hand);
    wl_display_roundtrip(display);
    if (hand.seat == nullptr || hand.pointers == nullptr || hand.keyboards == nullptr) {
        return 1;
    }
    hand.pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(hand.pointers, hand.seat);
    hand.keyboard =
        zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(hand.keyboards, hand.seat);
    setKeymap(hand.keyboard);
    std::string line = "wait";
    do {
        obey(hand, line);
        if (wl_display_roundtrip(display) < 0) {
            return 1;
        }
        std::puts("ready");
        std::fflush(stdout);
    } while (std::getline(std::cin, line));
    wl_display_disconnect(display);
    return 0;
}
