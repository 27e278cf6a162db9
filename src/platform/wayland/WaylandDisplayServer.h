#pragma once

#include "platform/DisplayServer.h"
#include "platform/wayland/clipboard/WaylandPasteboard.h"
#include "platform/wayland/input/Unrevealed.h"
#include "platform/wayland/keys/WaylandPasteKeys.h"
#include "platform/wayland/screens/WaylandScreens.h"
#include "platform/wayland/window/Surfaces.h"

namespace ravelo {

class HotZone;
class Scheduler;

} // namespace ravelo

namespace ravelo::wayland {

/// A Wayland compositor with wlr-layer-shell and data control, beside Qt's own objects on its
/// connection. The clipboard has a second connection, on a thread. Main thread, while there is a
/// QGuiApplication.
class WaylandDisplayServer final : public DisplayServer {
public:
    [[nodiscard]] static Result<std::unique_ptr<WaylandDisplayServer>> create();

    [[nodiscard]] Pasteboard& pasteboard() override { return pasteboard_; }

    [[nodiscard]] DragMonitor& drags() override { return drags_; }

    [[nodiscard]] WaylandScreens& screens() override { return screens_; }

    [[nodiscard]] EdgeBarrier* barrier() override { return nullptr; }

    [[nodiscard]] InputGrab& inputGrab() override { return inputGrab_; }

    [[nodiscard]] PasteKeys* pasteKeys() override { return pasteKeys_.get(); }

    /// None: the compositor does not say.
    [[nodiscard]] std::vector<SessionLock*> locks() override { return {}; }

    [[nodiscard]] std::unique_ptr<PanelWindow> panelWindow(QWindow& window) override;
    [[nodiscard]] std::unique_ptr<WindowFrame> windowFrame(QWindow& window) override;

    /// `window` must be a panel window of this server's. It, `scheduler` and this must outlive the
    /// hot zone.
    [[nodiscard]] std::unique_ptr<HotZone> hotZone(Scheduler& scheduler, PanelWindow& window);

private:
    explicit WaylandDisplayServer(std::unique_ptr<ClipboardThread> thread);

    std::unique_ptr<ClipboardThread> thread_;
    std::unique_ptr<Surfaces> surfaces_;
    WaylandPasteboard pasteboard_;
    std::unique_ptr<WaylandPasteKeys> pasteKeys_;
    NoDragMonitor drags_;
    NoInputGrab inputGrab_;
    WaylandScreens screens_;
};

} // namespace ravelo::wayland
