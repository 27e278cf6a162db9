#pragma once

#include "base/Listeners.h"
#include "base/Scheduler.h"
#include "platform/HotZone.h"
#include "platform/gnome/Channel.h"
#include "platform/gnome/GnomeDragMonitor.h"
#include "platform/gnome/GnomePanelWindow.h"
#include "platform/gnome/GnomeScreens.h"

namespace ravelo::gnome {

/// The extension's strip at the top edge, and the panel's window. The pointer's position elsewhere
/// is unknown.
class GnomeHotZone final : public HotZone {
public:
    /// All must outlive it.
    struct Services {
        Scheduler& scheduler;
        Channel& channel;
        GnomeScreens& screens;
        GnomeDragMonitor& drags;
        GnomePanelWindow& window;
    };

    explicit GnomeHotZone(Services services);

    [[nodiscard]] Sight look() override;
    [[nodiscard]] Handle onSight(std::function<Report(const Sight&)> callback) override;
    [[nodiscard]] Handle onPress(std::function<void(Press)> callback) override;

    [[nodiscard]] bool reportsPressesElsewhere() const override { return services_.channel.isUp(); }

    void setPanel(const QRectF& /*frame*/) override { lookAgain(); }

    void lookAgain() override;

private:
    void delivered(const Delivery& delivery);
    void report();

    Services services_;
    std::optional<std::size_t> edge_;     ///< The screen at whose edge the pointer is.
    std::optional<std::size_t> lastEdge_; ///< Where it was last.
    std::function<HotZone::Report(const Sight&)> callback_;
    Listeners<Press> presses_;
    Handle next_;
    Handle deliveries_;
    Handle ups_;
    Handle dragChanges_;
    Handle hover_;
    Handle panelPresses_;
};

} // namespace ravelo::gnome
