#include "platform/x11/Properties.h"

#include <utility>

namespace ravelo::x11 {

namespace {

// In units of four bytes; a client list of a busy session has a hundred windows.
constexpr uint32_t mostValues = 16384;

} // namespace

PropertyRequest::PropertyRequest(Connection& connection, xcb_window_t window, xcb_atom_t property)
    : connection_(&connection),
      cookie_(xcb_get_property(connection.get(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                               mostValues)) {}

PropertyRequest::PropertyRequest(PropertyRequest&& other) noexcept
    : connection_(other.connection_), cookie_(std::exchange(other.cookie_, {0})) {}

PropertyRequest::~PropertyRequest() {
    if (cookie_.sequence != 0) {
        xcb_discard_reply(connection_->get(), cookie_.sequence);
    }
}

std::vector<uint32_t> PropertyRequest::cardinals() {
    const auto cookie = std::exchange(cookie_, {0});
    const Owned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_->get(), cookie, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* values = static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

QSize windowSize(Connection& connection, xcb_window_t window) {
    const auto cookie = xcb_get_geometry(connection.get(), window);
    const Owned<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(connection.get(), cookie, nullptr));
    return reply ? QSize(reply->width, reply->height) : QSize();
}

} // namespace ravelo::x11
