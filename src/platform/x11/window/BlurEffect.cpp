#include "platform/x11/window/BlurEffect.h"

#include "platform/x11/connection/Properties.h"

#include <utility>

namespace ravelo::x11 {

BlurEffect::BlurEffect(Connection& connection, Events& events)
    : root_(connection.root()),
      property_(connection.atom("_KDE_NET_WM_BLUR_BEHIND_REGION")),
      announced_(PropertyRequest(connection, root_, property_).exists()),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {}

void BlurEffect::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change == nullptr || change->window != root_ || change->atom != property_) {
        return;
    }
    const bool announced = change->state == XCB_PROPERTY_NEW_VALUE;
    if (std::exchange(announced_, announced) != announced) {
        listeners_.notify();
    }
}

} // namespace ravelo::x11
