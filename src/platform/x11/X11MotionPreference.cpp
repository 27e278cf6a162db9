#include "platform/x11/X11MotionPreference.h"

#include "platform/x11/Properties.h"
#include "platform/x11/XSettings.h"

#include <utility>

namespace ravelo::x11 {

X11MotionPreference::X11MotionPreference(Connection& connection, Events& events)
    : connection_(connection),
      property_(connection.atom("_XSETTINGS_SETTINGS")),
      manager_(connection, events, ManagerSelection::settings),
      ownerChange_(manager_.onChange([this] { follow(); })),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    follow();
}

void X11MotionPreference::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change != nullptr && change->window == manager_.owner() && change->atom == property_) {
        look();
    }
}

/// From now on we are told of what this manager changes.
void X11MotionPreference::follow() {
    if (manager_.isOwned()) {
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_.get(), manager_.owner(), XCB_CW_EVENT_MASK, &mask);
    }
    look();
}

void X11MotionPreference::look() {
    bool reduced = false;
    if (manager_.isOwned()) {
        const QByteArray settings =
            PropertyRequest(connection_, manager_.owner(), property_).bytes();
        reduced = xsettingsInteger(settings, "Gtk/EnableAnimations") == 0;
    }
    if (std::exchange(reduced_, reduced) != reduced) {
        listeners_.notify();
    }
}

} // namespace ravelo::x11
