#pragma once

#include "platform/IconPreference.h"
#include "platform/x11/SettingsManager.h"

namespace ravelo::x11 {

/// The setting "Net/IconThemeName". Main thread.
class X11IconPreference final : public IconPreference {
public:
    /// It must outlive this.
    explicit X11IconPreference(SettingsManager& manager);

    [[nodiscard]] QString theme() const override { return theme_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void look();

    SettingsManager& manager_;
    QString theme_;
    Listeners<> listeners_;
    Handle changes_;
};

} // namespace ravelo::x11
