#include "platform/x11/X11TrayArea.h"

#include "platform/x11/Properties.h"

#include <utility>

namespace ravelo::x11 {

namespace {

/// Four colours of three values of 16 bits each: of texts first, then of errors, warnings, success.
std::optional<QColor> textColor(const std::vector<uint32_t>& colors) {
    if (colors.size() != 12) {
        return std::nullopt;
    }
    const auto part = [&](size_t index) {
        return static_cast<int>((colors[index] & 0xffffU) >> 8U);
    };
    return QColor(part(0), part(1), part(2));
}

} // namespace

X11TrayArea::X11TrayArea(Connection& connection, Events& events)
    : connection_(connection),
      colors_(connection.atom("_NET_SYSTEM_TRAY_COLORS")),
      manager_(connection, events, ManagerSelection::tray),
      ownerChange_(manager_.onChange([this] {
          follow();
          listeners_.notify();
      })),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    follow();
}

void X11TrayArea::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    if (change != nullptr && change->window == manager_.owner() && change->atom == colors_) {
        const auto before = foreground_;
        look();
        if (foreground_ != before) {
            listeners_.notify();
        }
    }
}

/// From now on we are told of what this tray changes.
void X11TrayArea::follow() {
    if (manager_.isOwned()) {
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_.get(), manager_.owner(), XCB_CW_EVENT_MASK, &mask);
    }
    look();
}

void X11TrayArea::look() {
    foreground_ =
        manager_.isOwned()
            ? textColor(PropertyRequest(connection_, manager_.owner(), colors_).cardinals())
            : std::nullopt;
}

} // namespace ravelo::x11
