#pragma once

#include "platform/DisplayServer.h"
#include "platform/x11/Events.h"
#include "platform/x11/ForeignCover.h"
#include "platform/x11/Listener.h"
#include "platform/x11/ManagerProperty.h"
#include "platform/x11/ManagerSelection.h"
#include "platform/x11/ScreenSaverStatus.h"
#include "platform/x11/X11DragMonitor.h"
#include "platform/x11/X11EdgeBarrier.h"
#include "platform/x11/X11IconPreference.h"
#include "platform/x11/X11InputGrab.h"
#include "platform/x11/X11MotionPreference.h"
#include "platform/x11/X11Pasteboard.h"
#include "platform/x11/X11Pointer.h"
#include "platform/x11/X11Screens.h"
#include "platform/x11/X11TrayArea.h"

namespace ravelo::x11 {

/// An X server with the extensions of the last fifteen years, beside Qt's own connection to it: one
/// connection for the main thread's short questions, one for the thread that waits for others.
/// Main thread, while there is a QGuiApplication.
class X11DisplayServer final : public DisplayServer {
public:
    [[nodiscard]] static Result<std::unique_ptr<X11DisplayServer>> create();

    [[nodiscard]] Pasteboard& pasteboard() override { return pasteboard_; }

    [[nodiscard]] Pointer& pointer() override { return pointer_; }

    [[nodiscard]] DragMonitor& drags() override { return drags_; }

    [[nodiscard]] Screens& screens() override { return screens_; }

    [[nodiscard]] EdgeBarrier& barrier() override { return barrier_; }

    [[nodiscard]] SessionLock& lock() override { return screenSaver_; }

    [[nodiscard]] SessionLock& cover() override { return cover_; }

    [[nodiscard]] InputGrab& inputGrab() override { return inputGrab_; }

    [[nodiscard]] MotionPreference& motion() override { return motion_; }

    [[nodiscard]] IconPreference& icons() override { return icons_; }

    [[nodiscard]] TrayArea& tray() override { return tray_; }

    [[nodiscard]] std::unique_ptr<PanelWindow> panelWindow(QWindow& window) override;
    [[nodiscard]] std::unique_ptr<WindowFrame> windowFrame(QWindow& window) override;

private:
    X11DisplayServer(std::unique_ptr<Connection> connection, std::unique_ptr<Listener> listener);

    std::unique_ptr<Connection> connection_;
    Events events_;
    X11Screens screens_;
    ManagerSelection compositor_;
    ManagerProperty settings_;
    X11MotionPreference motion_;
    X11IconPreference icons_;
    X11TrayArea tray_;
    ScreenSaverStatus screenSaver_;
    X11EdgeBarrier barrier_;
    X11InputGrab inputGrab_;
    std::unique_ptr<Listener> listener_;
    X11Pasteboard pasteboard_;
    X11DragMonitor drags_;
    X11Pointer pointer_;
    ForeignCover cover_;
};

} // namespace ravelo::x11
