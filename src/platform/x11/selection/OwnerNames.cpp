#include "platform/x11/selection/OwnerNames.h"

#include "platform/x11/connection/Properties.h"

#include <algorithm>
#include <vector>

namespace ravelo::x11 {

QStringList ownerNames(Connection& connection, const OwnClient& clients, xcb_window_t owner) {
    const xcb_window_t root = connection.root();
    // All at once: one round trip.
    PropertyRequest own(connection, owner, XCB_ATOM_WM_CLASS);
    PropertyRequest leaders(connection, owner, connection.atom("WM_CLIENT_LEADER"));
    PropertyRequest list(connection, root, connection.atom("_NET_CLIENT_LIST"));
    PropertyRequest active(connection, root, connection.atom("_NET_ACTIVE_WINDOW"));
    std::vector<PropertyRequest> classes;
    const auto add = [&](const std::vector<uint32_t>& windows, auto isMeant) {
        const auto window = std::ranges::find_if(windows, isMeant);
        if (window != windows.end()) {
            classes.emplace_back(connection, *window, XCB_ATOM_WM_CLASS);
        }
    };
    QStringList names = own.strings();
    if (!names.isEmpty()) {
        return names;
    }
    const auto any = [](xcb_window_t window) {
        return window != XCB_NONE;
    };
    add(leaders.cardinals(), any);
    add(list.cardinals(),
        [&](xcb_window_t window) { return clients.clientOf(window) == clients.clientOf(owner); });
    add(active.cardinals(), any);
    for (PropertyRequest& request : classes) {
        if (names.isEmpty()) {
            names = request.strings();
        }
    }
    return names;
}

} // namespace ravelo::x11
