#pragma once

#include "base/Listeners.h"
#include "panel/HoverTick.h"
#include "platform/HotZone.h"

#include <utility>

namespace ravelo {

class PanelWindow;
class Pointer;
struct PointerState;

/// The hot zone on a display server that can be asked where the pointer is: every 20 ms, at rest
/// not at all. If the pointer's position is unknown for now, what the panel's window itself knows
/// counts.
class PointerHotZone final : public HotZone {
public:
    /// All must outlive it.
    PointerHotZone(Scheduler& scheduler, Screens& screens, Pointer& pointer, PanelWindow& window,
                   HoverTick::Rest rest = HoverTick::Rest::whenStill);

    [[nodiscard]] Sight look() override;
    [[nodiscard]] Handle onSight(std::function<Report(const Sight&)> callback) override;
    [[nodiscard]] Handle onPress(std::function<void(Press)> callback) override;

    /// True while the pointer's position is known.
    [[nodiscard]] bool reportsPressesElsewhere() const override { return locationKnown_; }

    void setPanel(const QRectF& frame) override;

    void lookAgain() override { tick_.wake(); }

private:
    [[nodiscard]] PointerState ask();
    [[nodiscard]] Sight sightOf(const PointerState& pointer) const;
    HoverTick::Next report();
    void pressed(std::optional<QPointF> place);

    Screens& screens_;
    Pointer& pointer_;
    PanelWindow& window_;
    QRectF panel_;
    bool locationKnown_ = false;
    bool unseenPress_ = false; ///< A button was down at a look between two ticks.
    std::pair<std::optional<QPointF>, bool> reported_; ///< Location, and whether a button was down.
    std::function<Report(const Sight&)> callback_;
    Listeners<Press> presses_;
    HoverTick tick_;
    Handle pressMonitor_;
    Handle hover_;
};

} // namespace ravelo
