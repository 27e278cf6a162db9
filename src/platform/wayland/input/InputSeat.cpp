#include "platform/wayland/input/InputSeat.h"

#include <utility>

namespace ravelo::wayland {

namespace {

InputSeat& of(void* self) {
    return *static_cast<InputSeat*>(self);
}

} // namespace

// Of version 3, as it is bound: the events of later ones do not come.
const wl_seat_listener InputSeat::seatEvents = {
    .capabilities = [](void* self, wl_seat*,
                       uint32_t capabilities) { of(self).setCapabilities(capabilities); },
    .name = [](void*, wl_seat*, const char*) {},
};

// NOLINTBEGIN(clang-diagnostic-missing-designated-field-initializers)
const wl_pointer_listener InputSeat::pointerEvents = [] {
    wl_pointer_listener events{};
    events.enter = [](void* self, wl_pointer*, uint32_t, wl_surface* surface, wl_fixed_t,
                      wl_fixed_t) {
        of(self).move(surface);
    };
    events.leave = [](void* self, wl_pointer*, uint32_t, wl_surface*) {
        of(self).move(nullptr);
    };
    events.motion = [](void*, wl_pointer*, uint32_t, wl_fixed_t, wl_fixed_t) {
    };
    events.button = [](void* self, wl_pointer*, uint32_t, uint32_t, uint32_t, uint32_t state) {
        if (state == WL_POINTER_BUTTON_STATE_PRESSED) {
            of(self).press();
        }
    };
    events.axis = [](void*, wl_pointer*, uint32_t, uint32_t, wl_fixed_t) {
    };
    return events;
}();

// NOLINTEND(clang-diagnostic-missing-designated-field-initializers)

InputSeat::InputSeat(const Globals& globals) : seat_(globals.bind<wl_seat>(wl_seat_interface, 3)) {
    if (seat_) {
        wl_seat_add_listener(seat_.get(), &seatEvents, this);
    }
}

void InputSeat::setCapabilities(uint32_t capabilities) {
    const bool has = (capabilities & WL_SEAT_CAPABILITY_POINTER) != 0;
    if (!has) {
        move(nullptr);
        pointer_.reset();
    } else if (!pointer_) {
        pointer_.reset(wl_seat_get_pointer(seat_.get()));
        wl_pointer_add_listener(pointer_.get(), &pointerEvents, this);
    }
}

void InputSeat::move(wl_surface* to) {
    wl_surface* const from = std::exchange(under_, to);
    if (from != nullptr && from != to) {
        listeners_.notify(Change::left, from);
    }
    if (to != nullptr) {
        listeners_.notify(Change::entered, to);
    }
}

void InputSeat::press() const {
    if (under_ != nullptr) {
        listeners_.notify(Change::pressed, under_);
    }
}

} // namespace ravelo::wayland
