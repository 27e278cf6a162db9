#pragma once

#include "base/Listeners.h"

#include <QByteArray>

#include <cstdint>
#include <map>
#include <memory>

#include <wayland-client.h>

namespace ravelo::wayland {

struct Disconnect {
    void operator()(wl_display* display) const { wl_display_disconnect(display); }
};

using Connection = std::unique_ptr<wl_display, Disconnect>;

/// How to destroy one kind of object of a connection: see RAVELO_OWNED.
template <typename Object>
struct Release;

template <typename Object>
using Owned = std::unique_ptr<Object, Release<Object>>;

// Specialisations, as the functions themselves are not visible to other translation units.
// NOLINTBEGIN(bugprone-macro-parentheses): Names of types cannot have them.
#define RAVELO_OWNED(Object, function)                                                             \
    template <>                                                                                    \
    struct Release<Object> {                                                                       \
        void operator()(Object* object) const {                                                    \
            function(object);                                                                      \
        }                                                                                          \
    };
// NOLINTEND(bugprone-macro-parentheses)

RAVELO_OWNED(wl_registry, wl_registry_destroy)
RAVELO_OWNED(wl_event_queue, wl_event_queue_destroy)
RAVELO_OWNED(wl_seat, wl_seat_destroy)
RAVELO_OWNED(wl_pointer, wl_pointer_release)
RAVELO_OWNED(wl_region, wl_region_destroy)
RAVELO_OWNED(wl_surface, wl_surface_destroy)
RAVELO_OWNED(wl_shm, wl_shm_destroy)
RAVELO_OWNED(wl_shm_pool, wl_shm_pool_destroy)
RAVELO_OWNED(wl_buffer, wl_buffer_destroy)
RAVELO_OWNED(wl_data_device_manager, wl_data_device_manager_destroy)
RAVELO_OWNED(wl_data_device, wl_data_device_release)
RAVELO_OWNED(wl_data_offer, wl_data_offer_destroy)

/// What a compositor offers to one connection (wl_registry). For the thread that dispatches the
/// connection's events, except for the construction.
class Globals {
public:
    /// One round trip. `display` must outlive this; events of others are not dispatched meanwhile.
    explicit Globals(wl_display* display);

    [[nodiscard]] bool has(const QByteArray& interface) const { return found_.contains(interface); }

    /// Null if the compositor has no such thing. `version` is the latest that we can handle.
    template <typename Object>
    [[nodiscard]] Object* bind(const wl_interface& interface, uint32_t version) const {
        return static_cast<Object*>(bindAny(interface, version));
    }

    /// Called after the compositor began to offer something, or no longer does.
    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

private:
    struct Global {
        uint32_t name;
        uint32_t version;
    };

    [[nodiscard]] void* bindAny(const wl_interface& interface, uint32_t version) const;
    static void added(void* self, wl_registry* registry, uint32_t name, const char* interface,
                      uint32_t version);
    static void removed(void* self, wl_registry* registry, uint32_t name);

    static constexpr wl_registry_listener events = {added, removed};

    Owned<wl_registry> registry_;
    std::map<QByteArray, Global> found_; ///< The first of each kind.
    Listeners<> listeners_;
};

} // namespace ravelo::wayland
