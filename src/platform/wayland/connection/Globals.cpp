#include "platform/wayland/connection/Globals.h"

#include <algorithm>

namespace ravelo::wayland {

Globals::Globals(wl_display* display) {
    const Owned<wl_event_queue> queue(wl_display_create_queue(display));
    auto* const wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue.get());
    registry_.reset(wl_display_get_registry(wrapper));
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(registry_.get(), &events, this);
    wl_display_roundtrip_queue(display, queue.get());
    // From now on, like everything that is bound, on the queue that the connection's owner reads.
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(registry_.get()), nullptr);
}

void* Globals::bindAny(const wl_interface& interface, uint32_t version) const {
    const auto global = found_.find(interface.name);
    return global == found_.end()
               ? nullptr
               : wl_registry_bind(registry_.get(), global->second.name, &interface,
                                  std::min(version, global->second.version));
}

void Globals::added(void* self, wl_registry* /*registry*/, uint32_t name, const char* interface,
                    uint32_t version) {
    auto& globals = *static_cast<Globals*>(self);
    if (globals.found_.try_emplace(interface, Global{name, version}).second) {
        globals.listeners_.notify();
    }
}

void Globals::removed(void* self, wl_registry* /*registry*/, uint32_t name) {
    auto& globals = *static_cast<Globals*>(self);
    if (std::erase_if(globals.found_,
                      [name](const auto& global) { return global.second.name == name; }) > 0) {
        globals.listeners_.notify();
    }
}

} // namespace ravelo::wayland
