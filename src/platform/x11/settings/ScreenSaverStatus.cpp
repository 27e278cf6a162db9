#include "platform/x11/settings/ScreenSaverStatus.h"

#include "platform/x11/connection/Properties.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ravelo::x11 {

ScreenSaverStatus::ScreenSaverStatus(Connection& connection, Events& events)
    : connection_(connection),
      status_(connection.atom("_SCREENSAVER_STATUS")),
      version_(connection.atom("_SCREENSAVER_VERSION")),
      subscription_(events.onEvent([this](const auto& event) { handle(event); })) {
    look();
}

void ScreenSaverStatus::handle(const xcb_generic_event_t& event) {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    const auto* end = eventAs<xcb_destroy_notify_event_t>(event, XCB_DESTROY_NOTIFY);
    if ((change != nullptr && change->window == connection_.root() && change->atom == status_) ||
        (end != nullptr && end->window == saver_)) {
        look();
    }
}

void ScreenSaverStatus::look() {
    const auto status = PropertyRequest(connection_, connection_.root(), status_).cardinals();
    const bool shows = !status.empty() && status.front() != 0;
    saver_ = shows ? findSaver() : std::nullopt;
    const bool locked = saver_.has_value();
    if (std::exchange(locked_, locked) != locked) {
        listeners_.notify();
    }
}

/// The saver's window; from now on we get its DestroyNotify.
std::optional<xcb_window_t> ScreenSaverStatus::findSaver() {
    const auto windows =
        childrenOf(connection_, xcb_query_tree(connection_.get(), connection_.root()));
    std::vector<PropertyRequest> questions;
    questions.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        questions.emplace_back(connection_, window, version_);
    }
    const auto saver = std::ranges::find_if(questions, &PropertyRequest::exists);
    if (saver == questions.end()) {
        return std::nullopt;
    }
    const xcb_window_t window = windows[static_cast<size_t>(saver - questions.begin())];
    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const auto cookie =
        xcb_change_window_attributes_checked(connection_.get(), window, XCB_CW_EVENT_MASK, &mask);
    const Owned<xcb_generic_error_t> gone(xcb_request_check(connection_.get(), cookie));
    return gone ? std::nullopt : std::optional(window);
}

} // namespace ravelo::x11
