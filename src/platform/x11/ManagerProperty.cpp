#include "platform/x11/ManagerProperty.h"

#include "platform/x11/Properties.h"

namespace ravelo::x11 {

ManagerProperty::ManagerProperty(Connection& connection, Events& events, QByteArrayView manager,
                                 QByteArrayView property)
    : connection_(connection),
      property_(connection.atom(property.toByteArray())),
      manager_(connection, events, manager),
      ownerChange_(manager_.onChange([this] {
          follow();
          listeners_.notify();
      })),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    follow();
}

QByteArray ManagerProperty::bytes() {
    return isOwned() ? PropertyRequest(connection_, manager_.owner(), property_).bytes()
                     : QByteArray();
}

std::vector<uint32_t> ManagerProperty::cardinals() {
    return isOwned() ? PropertyRequest(connection_, manager_.owner(), property_).cardinals()
                     : std::vector<uint32_t>();
}

void ManagerProperty::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change != nullptr && change->window == manager_.owner() && change->atom == property_) {
        listeners_.notify();
    }
}

/// From now on we are told of what this manager changes.
void ManagerProperty::follow() {
    if (isOwned()) {
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_.get(), manager_.owner(), XCB_CW_EVENT_MASK, &mask);
    }
}

} // namespace ravelo::x11
