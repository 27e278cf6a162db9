#pragma once

#include "platform/x11/ManagerSelection.h"

#include <QByteArray>

namespace ravelo::x11 {

/// What the desktop's settings manager shares with all programs (XSETTINGS). Follows a manager that
/// comes, goes or starts anew. Main thread.
class SettingsManager {
public:
    /// Both must outlive it.
    SettingsManager(Connection& connection, Events& events);

    /// For `xsettingsInteger` and `xsettingsString`; empty while there is no manager.
    [[nodiscard]] const QByteArray& settings() const { return settings_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

private:
    void handle(const xcb_generic_event_t& event);
    void follow();
    void look();

    Connection& connection_;
    const xcb_atom_t property_;
    ManagerSelection manager_;
    QByteArray settings_;
    Listeners<> listeners_;
    Handle ownerChange_;
    Handle subscription_;
};

} // namespace ravelo::x11
