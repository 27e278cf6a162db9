#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"
#include "platform/x11/Events.h"

namespace ravelo::x11 {

/// What xscreensaver tells of itself: the property `_SCREENSAVER_STATUS` of the root window, whose
/// first value is 0 while the screen is to be seen. Main thread.
class ScreenSaverStatus final : public SessionLock {
public:
    /// Both must outlive it. The events must include those of the root window's properties.
    ScreenSaverStatus(Connection& connection, Events& events);

    [[nodiscard]] bool isLocked() const override { return locked_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void handle(const xcb_generic_event_t& event);
    [[nodiscard]] bool read();

    Connection& connection_;
    const xcb_atom_t status_;
    bool locked_;
    Listeners<> listeners_;
    Handle subscription_;
};

} // namespace ravelo::x11
