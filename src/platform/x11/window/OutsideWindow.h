#pragma once

#include "platform/x11/connection/Connection.h"

#include <QRect>

namespace ravelo::x11 {

/// XWayland does not always report that the pointer leaves a window for one that is not X11's. So
/// this invisible window is below the panel, over all other windows of its monitor, while the
/// pointer is in the panel: it leaves for this one. Main thread.
class OutsideWindow {
public:
    explicit OutsideWindow(Connection& connection);
    OutsideWindow(const OutsideWindow&) = delete;
    ~OutsideWindow();

    /// Just below `panel`, which must exist, on the monitor of these device pixels.
    void showBelow(xcb_window_t panel, const QRect& monitor);
    void hide();

    /// Whether this event of the connection says that the pointer has come to it.
    [[nodiscard]] bool isEntered(const xcb_generic_event_t& event) const;

private:
    void create();

    Connection& connection_;
    xcb_window_t id_ = XCB_WINDOW_NONE; ///< None until it is first shown.
};

} // namespace ravelo::x11
