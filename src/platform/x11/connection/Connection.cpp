#include "platform/x11/connection/Connection.h"

#include <QGuiApplication>

#include <xcb/xfixes.h>
#include <xcb/xinput.h>

namespace ravelo::x11 {

namespace {

xcb_screen_t* screenAt(xcb_connection_t* xcb, int number) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (; number > 0 && screens.rem > 1; --number) {
        xcb_screen_next(&screens);
    }
    return screens.data;
}

} // namespace

Result<std::unique_ptr<Connection>> Connection::create() {
    int number = 0;
    xcb_connection_t* xcb = xcb_connect(nullptr, &number);
    if (xcb_connection_has_error(xcb) != 0) {
        xcb_disconnect(xcb);
        return failure(QStringLiteral("no connection to the X server"));
    }
    std::unique_ptr<Connection> connection(new Connection(xcb, screenAt(xcb, number)));
    if (auto negotiated = connection->negotiate(); !negotiated) {
        return tl::unexpected(negotiated.error());
    }
    return connection;
}

Connection::~Connection() {
    xcb_disconnect(xcb_);
}

Result<void> Connection::negotiate() {
    const auto* xfixes = xcb_get_extension_data(xcb_, &xcb_xfixes_id);
    const auto* xinput = xcb_get_extension_data(xcb_, &xcb_input_id);
    if (xfixes == nullptr || xfixes->present == 0 || xinput == nullptr || xinput->present == 0) {
        return failure(QStringLiteral("the X server has no XFixes or no input extension"));
    }
    const auto xfixesCookie = xcb_xfixes_query_version(xcb_, 5, 0);
    const auto xinputCookie = xcb_input_xi_query_version(xcb_, 2, 2);
    const Owned<xcb_xfixes_query_version_reply_t> xfixesVersion(
        xcb_xfixes_query_version_reply(xcb_, xfixesCookie, nullptr));
    const Owned<xcb_input_xi_query_version_reply_t> xinputVersion(
        xcb_input_xi_query_version_reply(xcb_, xinputCookie, nullptr));
    if (!xfixesVersion || xfixesVersion->major_version < 5) {
        return failure(QStringLiteral("the X server has no XFixes 5"));
    }
    if (!xinputVersion || xinputVersion->major_version < 2 ||
        (xinputVersion->major_version == 2 && xinputVersion->minor_version < 1)) {
        return failure(QStringLiteral("the X server has no input extension 2.1"));
    }
    xfixesFirstEvent_ = xfixes->first_event;
    xinputOpcode_ = xinput->major_opcode;
    return {};
}

xcb_atom_t Connection::atom(const QByteArray& name) {
    if (const auto known = atoms_.find(name); known != atoms_.end()) {
        return known->second;
    }
    const auto cookie =
        xcb_intern_atom(xcb_, 0, static_cast<uint16_t>(name.size()), name.constData());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(xcb_, cookie, nullptr));
    if (!reply) {
        return XCB_ATOM_NONE;
    }
    names_.emplace(reply->atom, name);
    return atoms_.emplace(name, reply->atom).first->second;
}

std::vector<QByteArray> Connection::names(std::span<const xcb_atom_t> atoms) {
    std::map<xcb_atom_t, xcb_get_atom_name_cookie_t> asked;
    for (const xcb_atom_t atom : atoms) {
        if (!names_.contains(atom) && !asked.contains(atom)) {
            asked.emplace(atom, xcb_get_atom_name(xcb_, atom));
        }
    }
    for (const auto& [atom, cookie] : asked) {
        const Owned<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(xcb_, cookie, nullptr));
        if (reply) {
            names_.emplace(atom, QByteArray(xcb_get_atom_name_name(reply.get()),
                                            xcb_get_atom_name_name_length(reply.get())));
        }
    }
    std::vector<QByteArray> result;
    result.reserve(atoms.size());
    for (const xcb_atom_t atom : atoms) {
        const auto known = names_.find(atom);
        result.push_back(known == names_.end() ? QByteArray() : known->second);
    }
    return result;
}

OwnClient OwnClient::ofQt() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const xcb_setup_t* setup = xcb_get_setup(x11->connection());
    return {setup->resource_id_base, setup->resource_id_mask};
}

} // namespace ravelo::x11
