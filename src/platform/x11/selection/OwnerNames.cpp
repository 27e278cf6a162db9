#include "platform/x11/selection/OwnerNames.h"

#include "platform/x11/connection/Properties.h"

#include <algorithm>

namespace ravelo::x11 {

namespace {

QStringList classOf(Connection& connection, xcb_window_t window) {
    QStringList names;
    for (const QByteArray& name :
         PropertyRequest(connection, window, XCB_ATOM_WM_CLASS).bytes().split('\0')) {
        if (!name.isEmpty()) {
            names.append(QString::fromUtf8(name));
        }
    }
    return names;
}

QStringList classNamedBy(Connection& connection, xcb_window_t window, const QByteArray& property) {
    const auto named = PropertyRequest(connection, window, connection.atom(property)).cardinals();
    return named.empty() ? QStringList() : classOf(connection, named.front());
}

QStringList classOfClient(Connection& connection, const OwnClient& clients, xcb_window_t owner) {
    const auto windows =
        PropertyRequest(connection, connection.root(), connection.atom("_NET_CLIENT_LIST"))
            .cardinals();
    const auto same = std::ranges::find_if(windows, [&](xcb_window_t window) {
        return clients.clientOf(window) == clients.clientOf(owner);
    });
    return same == windows.end() ? QStringList() : classOf(connection, *same);
}

} // namespace

QStringList ownerNames(Connection& connection, const OwnClient& clients, xcb_window_t owner) {
    QStringList names = classOf(connection, owner);
    if (names.isEmpty()) {
        names = classNamedBy(connection, owner, "WM_CLIENT_LEADER");
    }
    if (names.isEmpty()) {
        names = classOfClient(connection, clients, owner);
    }
    if (names.isEmpty()) {
        names = classNamedBy(connection, connection.root(), "_NET_ACTIVE_WINDOW");
    }
    return names;
}

} // namespace ravelo::x11
