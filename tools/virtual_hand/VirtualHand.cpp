// A pointer and a keyboard for a wlroots compositor or KWin, driven by lines on standard input:
//
//   move X Y WIDTH HEIGHT   to a place in the layout of all outputs, which is that large
//   press, release          the left button
//   key CODE [MODIFIERS]    a key of linux/input-event-codes.h; 1 is Shift, 4 Control, 64 Super
//   wait                    nothing
//
// Says "ready" once both exist, and after each line once the compositor has handled it.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include <fake-input-client.h>
#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <virtual-keyboard-client.h>
#include <virtual-pointer-client.h>
#include <wayland-client.h>

namespace {

struct Place {
    uint32_t x, y, width, height;
};

class Hand {
public:
    virtual ~Hand() = default;
    virtual void move(Place place) = 0;
    virtual void button(uint32_t state) = 0;
    virtual void key(uint32_t code, uint32_t modifiers) = 0;
};

struct Globals {
    wl_seat* seat = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
    org_kde_kwin_fake_input* fake = nullptr;
};

uint32_t now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<uint32_t>(time.tv_sec * 1000 + time.tv_nsec / 1000000);
}

/// By protocols of wlroots.
class VirtualDevices final : public Hand {
public:
    explicit VirtualDevices(const Globals& globals)
        : pointer_(zwlr_virtual_pointer_manager_v1_create_virtual_pointer(globals.pointers,
                                                                          globals.seat)),
          keyboard_(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(globals.keyboards,
                                                                            globals.seat)) {
        const int file = memfd_create("keymap", MFD_CLOEXEC);
        if (write(file, keymap, sizeof keymap) == sizeof keymap) {
            zwp_virtual_keyboard_v1_keymap(keyboard_, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                                           sizeof keymap);
        }
        close(file);
    }

    void move(Place place) override {
        zwlr_virtual_pointer_v1_motion_absolute(pointer_, now(), place.x, place.y, place.width,
                                                place.height);
        zwlr_virtual_pointer_v1_frame(pointer_);
    }

    void button(uint32_t state) override {
        zwlr_virtual_pointer_v1_button(pointer_, now(), BTN_LEFT, state);
        zwlr_virtual_pointer_v1_frame(pointer_);
    }

    void key(uint32_t code, uint32_t modifiers) override {
        zwp_virtual_keyboard_v1_modifiers(keyboard_, modifiers, 0, 0, 0);
        zwp_virtual_keyboard_v1_key(keyboard_, now(), code, 1);
        zwp_virtual_keyboard_v1_key(keyboard_, now(), code, 0);
        zwp_virtual_keyboard_v1_modifiers(keyboard_, 0, 0, 0, 0);
    }

private:
    static constexpr char keymap[] = "xkb_keymap {"
                                     " xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
                                     " xkb_types { include \"complete\" };"
                                     " xkb_compat { include \"complete\" };"
                                     " xkb_symbols { include \"pc+us\" };"
                                     " };";

    zwlr_virtual_pointer_v1* pointer_;
    zwp_virtual_keyboard_v1* keyboard_;
};

/// By KWin's protocol.
class FakeInput final : public Hand {
public:
    explicit FakeInput(org_kde_kwin_fake_input* fake) : fake_(fake) {
        org_kde_kwin_fake_input_authenticate(fake_, "virtual_hand", "test");
    }

    void move(Place place) override {
        org_kde_kwin_fake_input_pointer_motion_absolute(
            fake_, wl_fixed_from_int(static_cast<int>(place.x)),
            wl_fixed_from_int(static_cast<int>(place.y)));
    }

    void button(uint32_t state) override { org_kde_kwin_fake_input_button(fake_, BTN_LEFT, state); }

    void key(uint32_t code, uint32_t modifiers) override {
        const auto hold = [&](uint32_t state) {
            constexpr std::pair<uint32_t, uint32_t> keys[] = {
                {1, KEY_LEFTSHIFT}, {4, KEY_LEFTCTRL}, {64, KEY_LEFTMETA}};
            for (const auto& [modifier, held] : keys) {
                if ((modifiers & modifier) != 0) {
                    org_kde_kwin_fake_input_keyboard_key(fake_, held, state);
                }
            }
        };
        hold(1);
        org_kde_kwin_fake_input_keyboard_key(fake_, code, 1);
        org_kde_kwin_fake_input_keyboard_key(fake_, code, 0);
        hold(0);
    }

private:
    org_kde_kwin_fake_input* fake_;
};

template <typename Object>
void bindIf(Object*& object, wl_registry* registry, uint32_t name, const char* found,
            const wl_interface& interface, uint32_t version) {
    if (std::strcmp(found, interface.name) == 0) {
        object = static_cast<Object*>(wl_registry_bind(registry, name, &interface, version));
    }
}

void bindGlobal(void* data, wl_registry* registry, uint32_t name, const char* found,
                uint32_t version) {
    Globals& globals = *static_cast<Globals*>(data);
    bindIf(globals.seat, registry, name, found, wl_seat_interface, 1);
    bindIf(globals.pointers, registry, name, found, zwlr_virtual_pointer_manager_v1_interface, 1);
    bindIf(globals.keyboards, registry, name, found, zwp_virtual_keyboard_manager_v1_interface, 1);
    bindIf(globals.fake, registry, name, found, org_kde_kwin_fake_input_interface,
           std::min(version, 4U));
}

std::unique_ptr<Hand> makeHand(wl_display* display) {
    Globals globals;
    const wl_registry_listener listener = {bindGlobal, [](void*, wl_registry*, uint32_t) {
                                           }};
    wl_registry_add_listener(wl_display_get_registry(display), &listener, &globals);
    wl_display_roundtrip(display);
    if (globals.fake != nullptr) {
        return std::make_unique<FakeInput>(globals.fake);
    }
    if (globals.seat != nullptr && globals.pointers != nullptr && globals.keyboards != nullptr) {
        return std::make_unique<VirtualDevices>(globals);
    }
    return nullptr;
}

void obey(Hand& hand, const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    uint32_t numbers[4] = {};
    words >> verb;
    std::ranges::for_each(numbers, [&](uint32_t& number) { words >> number; });
    if (verb == "move") {
        hand.move({numbers[0], numbers[1], numbers[2], numbers[3]});
    } else if (verb == "press" || verb == "release") {
        hand.button(verb == "press" ? 1 : 0);
    } else if (verb == "key") {
        hand.key(numbers[0], numbers[1]);
    }
}

} // namespace

int main() {
    wl_display* const display = wl_display_connect(nullptr);
    if (display == nullptr) {
        return 1;
    }
    const std::unique_ptr<Hand> hand = makeHand(display);
    if (!hand) {
        return 1;
    }
    std::string line = "wait";
    do {
        obey(*hand, line);
        if (wl_display_roundtrip(display) < 0) {
            return 1;
        }
        std::puts("ready");
        std::fflush(stdout);
    } while (std::getline(std::cin, line));
    wl_display_disconnect(display);
    return 0;
}
