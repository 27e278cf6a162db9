#include "platform/wayland/input/DropTarget.h"

#include <utility>

namespace ravelo::wayland {

namespace {

DropTarget& of(void* self) {
    return *static_cast<DropTarget*>(self);
}

} // namespace

const wl_data_device_listener DropTarget::events = {
    .data_offer =
        [](void* self, wl_data_device*, wl_data_offer* offer) {
            of(self).announced_[offer] =
                std::make_shared<WaylandDragOffer>(of(self).thread_, offer);
        },
    .enter = [](void* self, wl_data_device*, uint32_t, wl_surface* surface, wl_fixed_t, wl_fixed_t,
                wl_data_offer* offer) { of(self).enter(surface, offer); },
    .leave = [](void* self, wl_data_device*) { of(self).leave(); },
    .motion = [](void*, wl_data_device*, uint32_t, wl_fixed_t, wl_fixed_t) {},
    .drop = [](void* self, wl_data_device*) { of(self).leave(); },
    // The clipboard, while a window of ours has the keyboard.
    .selection = [](void* self, wl_data_device*,
                    wl_data_offer* offer) { of(self).announced_.erase(offer); },
};

DropTarget::DropTarget(const Globals& globals, wl_seat* seat, ClipboardThread& thread)
    : thread_(thread),
      manager_(globals.bind<wl_data_device_manager>(wl_data_device_manager_interface, 3)) {
    if (manager_ && seat != nullptr) {
        device_.reset(wl_data_device_manager_get_data_device(manager_.get(), seat));
        wl_data_device_add_listener(device_.get(), &events, this);
    }
}

void DropTarget::enter(wl_surface* surface, wl_data_offer* offer) {
    const auto announced = announced_.extract(offer);
    newest_ = announced.empty() ? nullptr : announced.mapped(); // A drag within one program.
    under_ = surface;
    listeners_.notify(Change::entered, surface);
}

void DropTarget::leave() {
    if (wl_surface* const from = std::exchange(under_, nullptr)) {
        listeners_.notify(Change::left, from);
    }
}

} // namespace ravelo::wayland
