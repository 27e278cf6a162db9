#pragma once

#include "platform/IconPreference.h"
#include "platform/x11/ManagerProperty.h"

namespace ravelo::x11 {

/// The setting "Net/IconThemeName". Main thread.
class X11IconPreference final : public IconPreference {
public:
    /// Of the settings manager (XSETTINGS); it must outlive this.
    explicit X11IconPreference(ManagerProperty& settings);

    [[nodiscard]] QString theme() const override { return theme_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void look();

    ManagerProperty& settings_;
    QString theme_;
    Listeners<> listeners_;
    Handle changes_;
};

} // namespace ravelo::x11
