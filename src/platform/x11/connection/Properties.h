#pragma once

#include "platform/x11/connection/Connection.h"

#include <QByteArray>
#include <QSize>
#include <QStringList>

#include <vector>

namespace ravelo::x11 {

/// A question for a property of a window, put at construction: several at once cost one round trip.
/// The server answers by itself, however busy the window's owner is.
class PropertyRequest {
public:
    PropertyRequest(Connection& connection, xcb_window_t window, xcb_atom_t property);

    PropertyRequest(PropertyRequest&& other) noexcept;
    PropertyRequest(const PropertyRequest&) = delete;
    PropertyRequest& operator=(PropertyRequest&&) = delete;
    PropertyRequest& operator=(const PropertyRequest&) = delete;
    ~PropertyRequest();

    /// Waits for the answer: whether there is such a property, of any type. One of these four
    /// may be called, once.
    [[nodiscard]] bool exists();

    /// Waits for the answer: the property's bytes, none if there is no such window or property
    /// or it is not made of bytes.
    [[nodiscard]] QByteArray bytes();

    /// Waits for the answer: the strings of a list such as WM_CLASS, without empty ones.
    [[nodiscard]] QStringList strings();

    /// Waits for the answer: the property's 32-bit values, none if there is no such window or
    /// property.
    [[nodiscard]] std::vector<uint32_t> cardinals();

private:
    [[nodiscard]] Owned<xcb_get_property_reply_t> reply();

    Connection* connection_;
    xcb_get_property_cookie_t cookie_; ///< `sequence` 0 if there is nothing to wait for.
};

/// Sent at the next flush.
void setCardinals(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property,
                  const std::vector<uint32_t>& values);

/// Waits for the answer: the windows right below the one asked about, lowest first.
[[nodiscard]] std::vector<xcb_window_t> childrenOf(Connection& connection,
                                                   xcb_query_tree_cookie_t asked);

/// A round trip; empty if there is no such window.
[[nodiscard]] QSize windowSize(Connection& connection, xcb_window_t window);

} // namespace ravelo::x11
