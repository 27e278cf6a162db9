#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"
#include "platform/x11/connection/Events.h"

#include <optional>

namespace ravelo::x11 {

/// What xscreensaver publishes: the property `_SCREENSAVER_STATUS` of the root window, whose
/// first value is 0 while the screen is to be seen. It stays behind when the saver is killed, so it
/// counts only as long as the saver's own window lives. Main thread.
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
    void look();
    [[nodiscard]] std::optional<xcb_window_t> findSaver();

    Connection& connection_;
    const xcb_atom_t status_;
    const xcb_atom_t version_;          ///< A property that the saver's window has.
    std::optional<xcb_window_t> saver_; ///< The one that shows.
    bool locked_ = false;
    Listeners<> listeners_;
    Handle subscription_;
};

} // namespace ravelo::x11
