#include "platform/x11/window/OutsideWindow.h"

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
    const uint32_t attributes[] = {0, 0, 1, colors};
    xcb_create_window(
        server, 32, id_, screen.root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP,
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
    // Without the first row, or it would count as a full-screen window, which hides GNOME's bar.
    const uint32_t values[] = {static_cast<uint32_t>(monitor.x()),
                               static_cast<uint32_t>(monitor.y() + 1),
                               static_cast<uint32_t>(monitor.width()),
                               static_cast<uint32_t>(monitor.height() - 1),
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

} // namespace ravelo::x11
