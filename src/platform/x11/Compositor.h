#pragma once

#include "base/Listeners.h"
#include "platform/x11/Events.h"

namespace ravelo::x11 {

/// Whether a compositing manager runs on our screen: it owns the selection `_NET_WM_CM_S<n>`
/// (EWMH). Main thread.
class Compositor {
public:
    /// Both must outlive it. Asks the X server once.
    Compositor(Connection& connection, Events& events);

    [[nodiscard]] bool isRunning() const { return running_; }

    /// Called after one came or went.
    [[nodiscard]] Handle onChange(std::function<void()> callback);

private:
    void handle(const xcb_generic_event_t& event);

    const xcb_atom_t selection_;
    const uint8_t noticeType_;
    bool running_ = false;
    Listeners<> listeners_;
    Handle subscription_;
};

} // namespace ravelo::x11
