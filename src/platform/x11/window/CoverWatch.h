#pragma once

#include "platform/x11/connection/Listener.h"

#include <QRect>

#include <functional>
#include <optional>
#include <vector>

namespace ravelo::x11 {

/// Watches for a window that hides the panel's monitor: mapped, not managed (override-redirect), as
/// large as the monitor and above the panel. Lockers without a bus show such a window. Full
/// screen windows that are managed do not count, nor do the window manager's frames around them,
/// nor windows below it such as a wallpaper. A compositor's overlay window is not listed as a child
/// of the root window.
/// Works on the listener's thread.
class CoverWatch final : public EventHandler {
public:
    using Changed = std::function<void(bool covered)>;

    /// `newcomer` is called for every foreign window that is mapped and not managed.
    CoverWatch(Connection& connection, Changed changed, std::function<void()> newcomer);

    /// The panel's window and the monitor it is on, in the root window's pixels. At the first call,
    /// a locker that was there before us counts too, although the panel was created above it.
    void follow(xcb_window_t panel, QRect monitor);

    void handle(const xcb_generic_event_t& event) override;

    [[nodiscard]] std::optional<TimePoint> deadline() const override { return staleSince_; }

    /// Looks once for all events that came together.
    void expire(TimePoint now) override;

private:
    /// A window that the panel may have been raised over before the main thread knew of it.
    struct Newcomer {
        xcb_window_t window;
        bool overtaken; ///< The panel was restacked after it was mapped.
    };

    void handleConfigure(const xcb_configure_notify_event_t& change);
    void lookAgain();
    [[nodiscard]] std::vector<xcb_window_t> stack();
    [[nodiscard]] std::vector<xcb_window_t> coversAmong(const std::vector<xcb_window_t>& windows);
    void lowerPanelBelow(xcb_window_t window);

    Connection& connection_;
    Changed changed_;
    std::function<void()> newcomer_;
    xcb_window_t panel_ = XCB_WINDOW_NONE;
    xcb_window_t belowPanel_ = XCB_WINDOW_NONE; ///< The window right below it.
    QRect monitor_;
    std::vector<xcb_window_t> covers_;
    std::vector<Newcomer> newcomers_;
    std::optional<uint32_t> lookedAt_; ///< Request number of the look that saw all newcomers.
    std::optional<TimePoint> staleSince_;
};

} // namespace ravelo::x11
