#include "platform/wayland/clipboard/DataControl.h"

#include "platform/wayland/clipboard/DataControlOf.h"

#include <ext-data-control-v1-client.h>
#include <wlr-data-control-unstable-v1-client.h>

namespace ravelo::wayland {

namespace {

// The two protocols differ only in their names. Version 1 of the second one has no events about the
// primary selection.
// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are parts of names.
#define RAVELO_DATA_CONTROL(Name, prefix)                                                          \
    struct Name {                                                                                  \
        using Manager = prefix##_manager_v1;                                                       \
        using Device = prefix##_device_v1;                                                         \
        using Offer = prefix##_offer_v1;                                                           \
        using Source = prefix##_source_v1;                                                         \
        using DeviceEvents = prefix##_device_v1_listener;                                          \
        using OfferEvents = prefix##_offer_v1_listener;                                            \
        using SourceEvents = prefix##_source_v1_listener;                                          \
        static constexpr const wl_interface& interface = prefix##_manager_v1_interface;            \
        static constexpr auto getDevice = prefix##_manager_v1_get_data_device;                     \
        static constexpr auto createSource = prefix##_manager_v1_create_data_source;               \
        static constexpr auto addType = prefix##_source_v1_offer;                                  \
        static constexpr auto receive = prefix##_offer_v1_receive;                                 \
        static constexpr auto setSelection = prefix##_device_v1_set_selection;                     \
        static constexpr auto listenToDevice = prefix##_device_v1_add_listener;                    \
        static constexpr auto listenToOffer = prefix##_offer_v1_add_listener;                      \
        static constexpr auto listenToSource = prefix##_source_v1_add_listener;                    \
        static constexpr auto destroyManager = prefix##_manager_v1_destroy;                        \
        static constexpr auto destroyDevice = prefix##_device_v1_destroy;                          \
        static constexpr auto destroyOffer = prefix##_offer_v1_destroy;                            \
        static constexpr auto destroySource = prefix##_source_v1_destroy;                          \
    }
// NOLINTEND(bugprone-macro-parentheses)
RAVELO_DATA_CONTROL(Standard, ext_data_control);
RAVELO_DATA_CONTROL(Wlroots, zwlr_data_control);
#undef RAVELO_DATA_CONTROL

template <typename Protocol>
std::unique_ptr<DataControl> createBy(const Globals& globals) {
    auto* manager = globals.bind<typename Protocol::Manager>(Protocol::interface, 1);
    auto* seat = globals.bind<wl_seat>(wl_seat_interface, 1);
    return std::make_unique<DataControlOf<Protocol>>(manager, seat);
}

} // namespace

bool DataControl::isOffered(const Globals& globals) {
    return globals.has(wl_seat_interface.name) &&
           (globals.has(Standard::interface.name) || globals.has(Wlroots::interface.name));
}

std::unique_ptr<DataControl> DataControl::create(const Globals& globals) {
    if (!isOffered(globals)) {
        return nullptr;
    }
    return globals.has(Standard::interface.name) ? createBy<Standard>(globals)
                                                 : createBy<Wlroots>(globals);
}

} // namespace ravelo::wayland
