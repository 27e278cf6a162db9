#pragma once

#include "base/Scheduler.h"
#include "platform/wayland/window/WaylandPanelWindow.h"

#include <map>

namespace ravelo::wayland {

class WaylandScreens;

/// The hot zone: the panel's own surface on its screen, an invisible strip on each other one. Main
/// thread.
class WaylandHotZone final : public HotZone {
public:
    /// All must outlive it.
    WaylandHotZone(Scheduler& scheduler, WaylandScreens& screens, WaylandPanelWindow& window,
                   Surfaces& surfaces);

    [[nodiscard]] Sight look() override;
    [[nodiscard]] Handle onSight(std::function<Report(const Sight&)> callback) override;

    [[nodiscard]] Handle onPress(std::function<void(Press)> callback) override {
        return window_.onPress(std::move(callback));
    }

    /// Only while the panel has the keyboard; it stays open then.
    [[nodiscard]] bool reportsPressesElsewhere() const override { return window_.wantsKeyboard(); }

    [[nodiscard]] bool needsKeyboardForPresses() const override { return true; }

    void setPanel(const QRectF& frame) override;
    void setDraggingOut(bool dragging) override;
    void lookAgain() override;

private:
    void report();
    void makeStrips();
    void hover(InputSeat::Change change, const wl_surface* surface);
    [[nodiscard]] QString screenOf(const wl_surface* strip) const;

    Scheduler& scheduler_;
    WaylandScreens& screens_;
    WaylandPanelWindow& window_;
    Surfaces& surfaces_;
    std::map<QString, std::unique_ptr<InvisibleSurface>> strips_; ///< By the ids of screens.
    bool draggingOut_ = false;
    QString hovered_; ///< The screen whose strip the pointer is in; or empty.
    std::function<Report(const Sight&)> callback_;
    Handle next_; ///< The next report.
    Handle underPointer_;
    Handle pointer_;
    Handle drags_;
    Handle screenChanges_;
};

} // namespace ravelo::wayland
