#pragma once

#include "base/Listeners.h"
#include "platform/x11/connection/Events.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <vector>

namespace ravelo::x11 {

/// The client that does something for our whole screen: the owner of the selection
/// `<name>_S<screen>` (ICCCM 2, "Manager Selections"). Main thread.
class ManagerSelection {
public:
    /// A compositor's (EWMH), a settings manager's (XSETTINGS) and a tray's (System Tray Protocol).
    static constexpr QByteArrayView compositor{"_NET_WM_CM"};
    static constexpr QByteArrayView settings{"_XSETTINGS"};
    static constexpr QByteArrayView tray{"_NET_SYSTEM_TRAY"};

    /// Both must outlive it. Asks the X server once.
    ManagerSelection(Connection& connection, Events& events, QByteArrayView name);

    [[nodiscard]] bool isOwned() const { return owner_ != XCB_WINDOW_NONE; }

    /// XCB_WINDOW_NONE if there is none.
    [[nodiscard]] xcb_window_t owner() const { return owner_; }

    /// Called after the owner changed.
    [[nodiscard]] Handle onChange(std::function<void()> callback);

private:
    void handle(const xcb_generic_event_t& event);

    const xcb_atom_t selection_;
    const uint8_t noticeType_;
    xcb_window_t owner_ = XCB_WINDOW_NONE;
    Listeners<> listeners_;
    Handle subscription_;
};

/// What a manager of our screen publishes in a property of its window. Follows a manager
/// that comes, goes or restarts. Main thread.
class ManagerProperty {
public:
    /// Both must outlive it. `manager` as ManagerSelection has it.
    ManagerProperty(Connection& connection, Events& events, QByteArrayView manager,
                    QByteArrayView property);

    [[nodiscard]] bool isOwned() const { return manager_.isOwned(); }

    // Each a round trip; empty while there is no manager or it publishes nothing of this form.
    [[nodiscard]] QByteArray bytes();
    [[nodiscard]] std::vector<uint32_t> cardinals();

    /// Called after the manager or what it shares changed.
    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

private:
    void handle(const xcb_generic_event_t& event);
    void follow();

    Connection& connection_;
    const xcb_atom_t property_;
    ManagerSelection manager_;
    Listeners<> listeners_;
    Handle ownerChange_;
    Handle subscription_;
};

} // namespace ravelo::x11
