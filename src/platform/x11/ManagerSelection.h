#pragma once

#include "base/Listeners.h"
#include "platform/x11/Events.h"

#include <QByteArrayView>

namespace ravelo::x11 {

/// Who does something for our whole screen: the owner of the selection `<name>_S<screen>` (ICCCM 2,
/// "Manager Selections"). Main thread.
class ManagerSelection {
public:
    /// A compositor's (EWMH), a settings manager's (XSETTINGS) and a tray's (System Tray Protocol).
    static constexpr QByteArrayView compositor{"_NET_WM_CM"};
    static constexpr QByteArrayView settings{"_XSETTINGS"};
    static constexpr QByteArrayView tray{"_NET_SYSTEM_TRAY"};

    /// Both must outlive it. Asks the X server once.
    ManagerSelection(Connection& connection, Events& events, QByteArrayView name);

    [[nodiscard]] bool isOwned() const { return owner_ != XCB_WINDOW_NONE; }

    /// XCB_WINDOW_NONE where nobody does it.
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

} // namespace ravelo::x11
