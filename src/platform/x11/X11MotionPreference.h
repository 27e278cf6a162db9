#pragma once

#include "platform/MotionPreference.h"
#include "platform/x11/ManagerSelection.h"

namespace ravelo::x11 {

/// The setting "Gtk/EnableAnimations", which the settings managers of the desktops share with all
/// programs (XSETTINGS). Follows a manager that comes, goes or starts anew. Main thread.
class X11MotionPreference final : public MotionPreference {
public:
    /// Both must outlive it.
    X11MotionPreference(Connection& connection, Events& events);

    [[nodiscard]] bool isReduced() const override { return reduced_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void handle(const xcb_generic_event_t& event);
    void follow();
    void look();

    Connection& connection_;
    const xcb_atom_t property_;
    ManagerSelection manager_;
    bool reduced_ = false;
    Listeners<> listeners_;
    Handle ownerChange_;
    Handle subscription_;
};

} // namespace ravelo::x11
