#include "platform/x11/SettingsManager.h"

#include "platform/x11/Properties.h"

#include <utility>

namespace ravelo::x11 {

SettingsManager::SettingsManager(Connection& connection, Events& events)
    : connection_(connection),
      property_(connection.atom("_XSETTINGS_SETTINGS")),
      manager_(connection, events, ManagerSelection::settings),
      ownerChange_(manager_.onChange([this] { follow(); })),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    follow();
}

void SettingsManager::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change != nullptr && change->window == manager_.owner() && change->atom == property_) {
        look();
    }
}

/// From now on we are told of what this manager changes.
void SettingsManager::follow() {
    if (manager_.isOwned()) {
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_.get(), manager_.owner(), XCB_CW_EVENT_MASK, &mask);
    }
    look();
}

void SettingsManager::look() {
    QByteArray settings;
    if (manager_.isOwned()) {
        settings = PropertyRequest(connection_, manager_.owner(), property_).bytes();
    }
    if (std::exchange(settings_, settings) != settings) {
        listeners_.notify();
    }
}

} // namespace ravelo::x11
