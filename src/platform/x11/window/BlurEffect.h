#pragma once

#include "base/Listeners.h"
#include "platform/x11/connection/Events.h"

namespace ravelo::x11 {

/// Whether the compositor blurs what is behind windows that ask for it by
/// `_KDE_NET_WM_BLUR_BEHIND_REGION`. KWin announces each of its effects by a property of that name
/// on the root window. Main thread.
class BlurEffect {
public:
    /// Both must outlive it, and X11Screens must have selected the root's property events.
    /// Asks the X server once.
    BlurEffect(Connection& connection, Events& events);

    [[nodiscard]] bool isAnnounced() const { return announced_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

    /// The property of a window that names the region to blur.
    [[nodiscard]] xcb_atom_t property() const { return property_; }

private:
    void handle(const xcb_generic_event_t& event);

    const xcb_window_t root_;
    const xcb_atom_t property_;
    bool announced_;
    Listeners<> listeners_;
    Handle subscription_;
};

} // namespace ravelo::x11
