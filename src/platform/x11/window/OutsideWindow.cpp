#include "platform/x11/window/OutsideWindow.h"

#include "platform/x11/connection/Events.h"

namespace ravelo::x11 {

namespace {

/// One that has an alpha channel; none if the server has no such.
xcb_visualid_t transparentVisual(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0;
         xcb_depth_next(&depth)) {
        const auto visual = xcb_depth_visuals_iterator(depth.data);
        if (depth.data->depth == 32 && visual.rem > 0) {
            return visual.data->visual_id;
        }
    }
    return XCB_NONE;
}

} // namespace

OutsideWindow::OutsideWindow(Connection& connection) : connection_(connection) {}

OutsideWindow::~OutsideWindow() {
    if (id_ != XCB_WINDOW_NONE) {
        xcb_destroy_window(connection_.get(), id_);
        xcb_flush(connection_.get());
    }
}

void OutsideWindow::create() {
    xcb_connection_t* const server = connection_.get();
    const xcb_screen_t& screen = connection_.screen();
    const xcb_visualid_t visual = transparentVisual(screen);
    if (visual == XCB_NONE) {
        return;
    }
    const xcb_colormap_t colors = xcb_generate_id(server);
    xcb_create_colormap(server, XCB_COLORMAP_ALLOC_NONE, colors, screen.root, visual);
    id_ = xcb_generate_id(server);
    const uint32_t attributes[] = {0, 0, 1, XCB_EVENT_MASK_ENTER_WINDOW, colors};
    xcb_create_window(server, 32, id_, screen.root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT |
                          XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      attributes);
    xcb_free_colormap(server, colors);
}

void OutsideWindow::showBelow(xcb_window_t panel, const QRect& monitor) {
    if (id_ == XCB_WINDOW_NONE) {
        create();
    }
    if (id_ == XCB_WINDOW_NONE) {
        return;
    }
    // As large as the monitor, it would count as a full-screen window, which hides GNOME's bar, and
    // for us as a locker.
    constexpr int spared = 6;
    const uint32_t values[] = {static_cast<uint32_t>(monitor.x() + spared),
                               static_cast<uint32_t>(monitor.y()),
                               static_cast<uint32_t>(monitor.width() - spared),
                               static_cast<uint32_t>(monitor.height()),
                               panel,
                               XCB_STACK_MODE_BELOW};
    xcb_configure_window(connection_.get(), id_,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_SIBLING |
                             XCB_CONFIG_WINDOW_STACK_MODE,
                         values);
    xcb_map_window(connection_.get(), id_);
    xcb_flush(connection_.get());
}

void OutsideWindow::hide() {
    if (id_ != XCB_WINDOW_NONE) {
        xcb_unmap_window(connection_.get(), id_);
        xcb_flush(connection_.get());
    }
}

bool OutsideWindow::isEntered(const xcb_generic_event_t& event) const {
    const auto* enter = eventAs<xcb_enter_notify_event_t>(event, XCB_ENTER_NOTIFY);
    return enter != nullptr && enter->event == id_;
}

} // namespace ravelo::x11
