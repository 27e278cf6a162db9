#pragma once

#include "platform/TrayArea.h"
#include "platform/x11/settings/ManagerSelection.h"

namespace ravelo::x11 {

/// The tray of the System Tray Protocol, with the colours that GTK's trays publish. Main thread.
class X11TrayArea final : public TrayArea {
public:
    /// Both must outlive it.
    X11TrayArea(Connection& connection, Events& events);

    [[nodiscard]] bool isThere() const override { return colors_.isOwned(); }

    [[nodiscard]] std::optional<QColor> foreground() const override { return foreground_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private:
    void look();

    ManagerProperty colors_;
    std::optional<QColor> foreground_;
    Listeners<> listeners_;
    Handle changes_;
};

} // namespace ravelo::x11
