#pragma once

#include <QVariantAnimation>

#include <xcb/xcb.h>

namespace ravelo::x11 {

class Connection;

/// Lets the compositor fade a window in (_NET_WM_WINDOW_OPACITY), for which nothing is drawn again.
class WindowFade {
public:
    /// Sends its requests through `connection`, which must outlive it; atoms come from `atoms`.
    WindowFade(xcb_connection_t* connection, Connection& atoms);

    void start(xcb_window_t window);

    /// Shows the window in full.
    void stop();

private:
    void show(double opacity);

    xcb_connection_t* connection_;
    const xcb_atom_t property_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    QVariantAnimation animation_;
};

} // namespace ravelo::x11
