#pragma once

#include "platform/x11/connection/Events.h"

#include <optional>

namespace ravelo::x11 {

/// Borrows the keyboard for a window that the window manager does not know, and gives it back.
///
/// Both with the server's time of the borrowing: the server ignores a focus change that is older
/// than the last one, so whatever window the user, the window manager or a program gives the focus
/// to later keeps it, whichever of the requests arrives first. With a newer time the window just
/// clicked would lose: its window manager uses the time of the click. Main thread.
class InputFocus {
public:
    /// Both must outlive it.
    InputFocus(Connection& connection, Events& events);

    InputFocus(const InputFocus&) = delete;
    InputFocus& operator=(const InputFocus&) = delete;
    ~InputFocus();

    /// Remembers who has the focus and asks for it; it comes once the server's time is known.
    /// Does nothing if `window` has it already. One round trip.
    void borrow(xcb_window_t window);

    /// Gives the focus back if `window` still has it: to the window that had it, or, if that cannot
    /// have it any more, to the window under the pointer. At most two round trips.
    void giveBack(xcb_window_t window);

    /// The window that has the focus now, or that gets it back if a window of `own` has it. Nothing
    /// if it follows the pointer. One round trip.
    [[nodiscard]] std::optional<xcb_window_t> next(const OwnClient& own);

private:
    struct Owner {
        xcb_window_t window;
        uint8_t revertTo;
    };

    [[nodiscard]] std::optional<Owner> current();
    [[nodiscard]] bool canTakeFocus(xcb_window_t window);
    void handle(const xcb_generic_event_t& event);

    Connection& connection_;
    const xcb_window_t clock_; ///< A window of ours whose property changes carry the server's time.
    std::optional<Owner> previous_;
    xcb_window_t asking_ = XCB_WINDOW_NONE;
    xcb_timestamp_t borrowedAt_ = XCB_CURRENT_TIME;
    Handle subscription_;
};

} // namespace ravelo::x11
