#include "platform/x11/ScreenSaverStatus.h"

#include "platform/x11/Properties.h"

#include <utility>

namespace ravelo::x11 {

ScreenSaverStatus::ScreenSaverStatus(Connection& connection, Events& events)
    : connection_(connection),
      status_(connection.atom("_SCREENSAVER_STATUS")),
      locked_(read()),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {}

void ScreenSaverStatus::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change == nullptr || change->window != connection_.root() || change->atom != status_) {
        return;
    }
    const bool locked = read();
    if (std::exchange(locked_, locked) != locked) {
        listeners_.notify();
    }
}

bool ScreenSaverStatus::read() {
    const auto values = PropertyRequest(connection_, connection_.root(), status_).cardinals();
    return !values.empty() && values.front() != 0;
}

} // namespace ravelo::x11
