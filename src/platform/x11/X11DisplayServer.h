#pragma once

#include "platform/DisplayServer.h"
#include "platform/GlobalShortcut.h"
#include "platform/IconPreference.h"
#include "platform/MotionPreference.h"
#include "platform/TrayArea.h"
#include "platform/x11/connection/Events.h"
#include "platform/x11/connection/Listener.h"
#include "platform/x11/keys/X11PasteKeys.h"
#include "platform/x11/pointer/X11EdgeBarrier.h"
#include "platform/x11/pointer/X11InputGrab.h"
#include "platform/x11/pointer/X11Pointer.h"
#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/selection/X11DragMonitor.h"
#include "platform/x11/selection/X11Pasteboard.h"
#include "platform/x11/selection/X11SelectedText.h"
#include "platform/x11/settings/ManagerSelection.h"
#include "platform/x11/settings/ScreenSaverStatus.h"
#include "platform/x11/window/ForeignCover.h"
#include "platform/x11/window/InputFocus.h"

namespace ravelo::x11 {

/// An X server with the extensions of the last fifteen years, beside Qt's own connection to it: one
/// connection for the main thread's short questions, one for the thread that waits for others.
/// Main thread, while there is a QGuiApplication.
class X11DisplayServer final : public DisplayServer {
public:
    [[nodiscard]] static Result<std::unique_ptr<X11DisplayServer>> create();

    [[nodiscard]] Pasteboard& pasteboard() override { return pasteboard_; }

    [[nodiscard]] DragMonitor& drags() override { return drags_; }

    [[nodiscard]] SelectedText* selectedText() override { return &selectedText_; }

    [[nodiscard]] Screens& screens() override { return screens_; }

    [[nodiscard]] EdgeBarrier* barrier() override { return &barrier_; }

    [[nodiscard]] InputGrab& inputGrab() override { return inputGrab_; }

    [[nodiscard]] std::vector<SessionLock*> locks() override { return {&screenSaver_, &cover_}; }

    [[nodiscard]] PasteKeys* pasteKeys() override { return &pasteKeys_; }

    [[nodiscard]] std::unique_ptr<PanelWindow> panelWindow(QWindow& window) override;
    [[nodiscard]] std::unique_ptr<WindowFrame> windowFrame(QWindow& window) override;

    /// For the hot zone.
    [[nodiscard]] Pointer& pointer() { return pointer_; }

    /// Whether this is the X server of a Wayland session, which knows little of it.
    [[nodiscard]] bool isXWayland() const { return isXWayland_; }

    /// Must be destroyed before it. On XWayland, keys arrive only while an X11 program has the
    /// keyboard.
    [[nodiscard]] std::unique_ptr<GlobalShortcut> shortcut();

    // What the desktop publishes through the X server. They must be destroyed before it.
    [[nodiscard]] std::unique_ptr<MotionPreference> motion();
    [[nodiscard]] std::unique_ptr<IconPreference> icons();
    [[nodiscard]] std::unique_ptr<TrayArea> tray();

private:
    X11DisplayServer(std::unique_ptr<Connection> connection, std::unique_ptr<Listener> listener);

    std::unique_ptr<Connection> connection_;
    const bool isXWayland_;
    Events events_;
    InputFocus focus_;
    X11PasteKeys pasteKeys_;
    X11Screens screens_;
    ManagerSelection compositor_;
    ManagerProperty settings_;
    ScreenSaverStatus screenSaver_;
    X11EdgeBarrier barrier_;
    X11InputGrab inputGrab_;
    std::unique_ptr<Listener> listener_;
    X11Pasteboard pasteboard_;
    X11SelectedText selectedText_;
    X11DragMonitor drags_;
    X11Pointer pointer_;
    ForeignCover cover_;
};

} // namespace ravelo::x11
