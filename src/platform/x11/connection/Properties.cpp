#include "platform/x11/connection/Properties.h"

#include <utility>

namespace ravelo::x11 {

namespace {

// In units of four bytes; a client list of a busy session has a hundred windows.
constexpr uint32_t maxValues = 16384;

} // namespace

PropertyRequest::PropertyRequest(Connection& connection, xcb_window_t window, xcb_atom_t property)
    : connection_(&connection),
      cookie_(xcb_get_property(connection.get(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                               maxValues)) {}

PropertyRequest::PropertyRequest(PropertyRequest&& other) noexcept
    : connection_(other.connection_), cookie_(std::exchange(other.cookie_, {0})) {}

PropertyRequest::~PropertyRequest() {
    if (cookie_.sequence != 0) {
        xcb_discard_reply(connection_->get(), cookie_.sequence);
    }
}

Owned<xcb_get_property_reply_t> PropertyRequest::reply() {
    const auto cookie = std::exchange(cookie_, {0});
    return Owned<xcb_get_property_reply_t>(
        xcb_get_property_reply(connection_->get(), cookie, nullptr));
}

bool PropertyRequest::exists() {
    const auto answer = reply();
    return answer && answer->type != XCB_ATOM_NONE;
}

QByteArray PropertyRequest::bytes() {
    const auto answer = reply();
    if (!answer || answer->format != 8) {
        return {};
    }
    const auto* values = static_cast<const char*>(xcb_get_property_value(answer.get()));
    return {values, static_cast<qsizetype>(answer->value_len)};
}

QStringList PropertyRequest::strings() {
    QStringList strings;
    for (const QByteArray& string : bytes().split('\0')) {
        if (!string.isEmpty()) {
            strings.append(QString::fromUtf8(string));
        }
    }
    return strings;
}

std::vector<uint32_t> PropertyRequest::cardinals() {
    const auto answer = reply();
    if (!answer || answer->format != 32) {
        return {};
    }
    const auto* values = static_cast<const uint32_t*>(xcb_get_property_value(answer.get()));
    return {values, values + answer->value_len};
}

void setCardinals(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property,
                  const std::vector<uint32_t>& values) {
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_CARDINAL, 32,
                        static_cast<uint32_t>(values.size()), values.data());
}

std::vector<xcb_window_t> childrenOf(Connection& connection, xcb_query_tree_cookie_t asked) {
    const Owned<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(connection.get(), asked, nullptr));
    if (!reply) {
        return {};
    }
    const xcb_window_t* first = xcb_query_tree_children(reply.get());
    return {first, first + xcb_query_tree_children_length(reply.get())};
}

QSize windowSize(Connection& connection, xcb_window_t window) {
    const auto cookie = xcb_get_geometry(connection.get(), window);
    const Owned<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(connection.get(), cookie, nullptr));
    return reply ? QSize(reply->width, reply->height) : QSize();
}

} // namespace ravelo::x11
