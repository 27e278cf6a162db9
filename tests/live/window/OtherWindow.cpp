#include "live/window/OtherWindow.h"

#include "live/support/Clients.h"
#include "platform/x11/connection/Properties.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace ravelo::live {

using x11::Owned;

namespace {

std::unique_ptr<x11::Connection> connect() {
    auto connection = x11::Connection::create();
    if (!connection) {
        ADD_FAILURE() << qPrintable(connection.error().message);
        std::abort();
    }
    return std::move(*connection);
}

xcb_window_t makeWindow(Server& server, QRect geometry, uint32_t eventMask) {
    const xcb_window_t window = xcb_generate_id(server.get());
    const std::array<uint32_t, 2> values = {0x3060c0, eventMask};
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(),
                      static_cast<int16_t>(geometry.x()), static_cast<int16_t>(geometry.y()),
                      static_cast<uint16_t>(geometry.width()),
                      static_cast<uint16_t>(geometry.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
    return window;
}

Server& newServer() {
    static std::vector<std::unique_ptr<Server>> all;
    return *all.emplace_back(std::make_unique<Server>());
}

} // namespace

Server::Server()
    : connection_(connect()),
      clock_(makeWindow(*this, {0, 0, 1, 1}, XCB_EVENT_MASK_PROPERTY_CHANGE)) {}

xcb_window_t Server::focus() {
    const Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr));
    return reply ? reply->focus : xcb_window_t(XCB_WINDOW_NONE);
}

QRect Server::geometry(xcb_window_t window) {
    const Owned<xcb_translate_coordinates_reply_t> corner(xcb_translate_coordinates_reply(
        get(), xcb_translate_coordinates(get(), window, root(), 0, 0), nullptr));
    const QSize size = x11::windowSize(*connection_, window);
    return corner ? QRect(QPoint(corner->dst_x, corner->dst_y), size) : QRect();
}

bool Server::isViewable(xcb_window_t window) {
    const Owned<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(get(), xcb_get_window_attributes(get(), window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

xcb_window_t Server::childOfRoot(xcb_window_t window) {
    const Owned<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(get(), xcb_query_tree(get(), window), nullptr));
    return !reply || reply->parent == root() ? window : childOfRoot(reply->parent);
}

bool Server::isAbove(xcb_window_t upper, xcb_window_t lower) {
    const xcb_window_t frame = childOfRoot(lower);
    const Owned<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(get(), xcb_query_tree(get(), root()), nullptr));
    const auto* begin = xcb_query_tree_children(reply.get()); // Bottom first.
    const auto* end = begin + xcb_query_tree_children_length(reply.get());
    const auto* lowerPlace = std::find(begin, end, frame);
    return lowerPlace != end && std::find(lowerPlace, end, upper) != end;
}

void Server::setCardinals(xcb_window_t window, const QByteArray& property,
                          const std::vector<uint32_t>& values, xcb_atom_t type) {
    xcb_change_property(get(), XCB_PROP_MODE_REPLACE, window, atom(property), type, 32,
                        static_cast<uint32_t>(values.size()), values.data());
    xcb_flush(get());
}

std::vector<uint32_t> Server::cardinals(xcb_window_t window, const QByteArray& property) {
    return x11::PropertyRequest(*connection_, window, atom(property)).cardinals();
}

xcb_timestamp_t Server::time() {
    setCardinals(clock_, "WM_NAME", {});
    while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(get())}) {
        if (event->response_type == XCB_PROPERTY_NOTIFY) {
            const void* memory = event.get();
            return static_cast<const xcb_property_notify_event_t*>(memory)->time;
        }
    }
    return XCB_CURRENT_TIME;
}

OtherWindow::OtherWindow(Kind kind, QRect geometry, const std::vector<uint32_t>& strutPartial)
    : server_(newServer()), id_(makeWindow(server_, geometry, XCB_EVENT_MASK_BUTTON_PRESS)) {
    // USPosition and USSize: the window manager leaves both alone.
    std::vector<uint32_t> sizeHints(18);
    sizeHints[0] = 3;
    server_.setCardinals(id_, "WM_NORMAL_HINTS", sizeHints, XCB_ATOM_WM_SIZE_HINTS);
    if (kind == Kind::fullScreen) {
        server_.setCardinals(id_, "_NET_WM_STATE", {server_.atom("_NET_WM_STATE_FULLSCREEN")},
                             XCB_ATOM_ATOM);
    }
    if (kind == Kind::dock) {
        server_.setCardinals(id_, "_NET_WM_WINDOW_TYPE", {server_.atom("_NET_WM_WINDOW_TYPE_DOCK")},
                             XCB_ATOM_ATOM);
        reserve(strutPartial);
    }
    const uint32_t unmanaged = kind == Kind::popup ? 1 : 0;
    xcb_change_window_attributes(server_.get(), id_, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    xcb_map_window(server_.get(), id_);
    xcb_flush(server_.get());
    const bool takesFocus = kind == Kind::normal || kind == Kind::fullScreen;
    EXPECT_TRUE(eventually([&] {
        return server_.isViewable(id_) && (!takesFocus || server_.focus() == id_);
    })) << "the other window is not shown and focused";
}

OtherWindow::~OtherWindow() {
    xcb_destroy_window(server_.get(), id_);
    xcb_flush(server_.get());
    EXPECT_TRUE(eventually([&] {
        const auto clients = server_.cardinals(server_.root(), "_NET_CLIENT_LIST");
        return std::find(clients.begin(), clients.end(), id_) == clients.end();
    })) << "the window manager holds on to a closed window";
}

void OtherWindow::reserve(const std::vector<uint32_t>& strutPartial) {
    server_.setCardinals(id_, "_NET_WM_STRUT_PARTIAL", strutPartial);
}

int OtherWindow::presses() {
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())}) {
        presses_ += event->response_type == XCB_BUTTON_PRESS ? 1 : 0;
    }
    return presses_;
}

void OtherWindow::iconify() {
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = id_;
    message.type = server_.atom("WM_CHANGE_STATE");
    message.data.data32[0] = 3; // ICCCM IconicState
    const void* bytes = &message;
    xcb_send_event(server_.get(), 0, server_.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   static_cast<const char*>(bytes));
    xcb_flush(server_.get());
    EXPECT_TRUE(eventually([&] { return !server_.isViewable(id_); })) << "it is not iconified";
}

void click(QPoint place) {
    EXPECT_TRUE(run(u"xdotool"_s, {u"mousemove"_s, QString::number(place.x()),
                                   QString::number(place.y()), u"click"_s, u"1"_s}));
}

} // namespace ravelo::live
