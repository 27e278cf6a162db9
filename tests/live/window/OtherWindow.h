#pragma once

#include "platform/x11/connection/Connection.h"

#include <QRect>

#include <memory>
#include <vector>

namespace ravelo::live {

/// Queries the X server on a separate connection. Each query is a round trip.
class Server {
public:
    Server();

    [[nodiscard]] xcb_connection_t* get() const { return connection_->get(); }

    [[nodiscard]] x11::Connection& connection() { return *connection_; }

    [[nodiscard]] xcb_atom_t atom(const QByteArray& name) { return connection_->atom(name); }

    [[nodiscard]] xcb_window_t root() const { return connection_->root(); }

    [[nodiscard]] xcb_window_t focus();

    /// In the root's pixels.
    [[nodiscard]] QRect geometry(xcb_window_t window);

    [[nodiscard]] bool isViewable(xcb_window_t window);

    /// Whether the top-level window `upper` lies above the one that is or holds `lower`.
    [[nodiscard]] bool isAbove(xcb_window_t upper, xcb_window_t lower);

    void setCardinals(xcb_window_t window, const QByteArray& property,
                      const std::vector<uint32_t>& values, xcb_atom_t type = XCB_ATOM_CARDINAL);
    [[nodiscard]] std::vector<uint32_t> cardinals(xcb_window_t window, const QByteArray& property);

    /// The server's time, now.
    [[nodiscard]] xcb_timestamp_t time();

private:
    [[nodiscard]] xcb_window_t childOfRoot(xcb_window_t window);

    std::unique_ptr<x11::Connection> connection_;
    xcb_window_t clock_;
};

/// A window that the window manager sees as another program's.
class OtherWindow {
public:
    /// A popup is one that the window manager leaves alone.
    enum class Kind { normal, fullScreen, dock, popup };

    /// Shown at the return; a normal or full-screen window also focused.
    OtherWindow(Kind kind, QRect geometry, const std::vector<uint32_t>& strutPartial = {});

    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;

    /// Closes it and waits until the window manager has forgotten it.
    ~OtherWindow();

    [[nodiscard]] xcb_window_t id() const { return id_; }

    /// Replaces what it reserves along the edges; empty for nothing.
    void reserve(const std::vector<uint32_t>& strutPartial);

    /// Of buttons, up to now.
    [[nodiscard]] int presses();

    /// As a user of the window manager does it.
    void iconify();

private:
    /// Never closed: the server would give its window's number to the next one, and the window
    /// manager mix them up.
    Server& server_;
    xcb_window_t id_;
    int presses_ = 0;
};

/// Moves the pointer there, in the root's pixels, and clicks.
void click(QPoint place);

} // namespace ravelo::live
