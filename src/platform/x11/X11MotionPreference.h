#pragma once

#include "platform/MotionPreference.h"
#include "platform/x11/ManagerProperty.h"

namespace ravelo::x11 {

/// The setting "Gtk/EnableAnimations". Main thread.
class X11MotionPreference final : public MotionPreference {
public:
    /// Of the settings manager (XSETTINGS); it must outlive this.
    explicit X11MotionPreference(ManagerProperty& settings);

    [[nodiscard]] bool isReduced() const override { return reduced_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void look();

    ManagerProperty& settings_;
    bool reduced_ = false;
    Listeners<> listeners_;
    Handle changes_;
};

} // namespace ravelo::x11
