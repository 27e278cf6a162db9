#pragma once

#include "platform/DragMonitor.h"
#include "platform/EdgeBarrier.h"
#include "platform/IconPreference.h"
#include "platform/InputGrab.h"
#include "platform/MotionPreference.h"
#include "platform/PanelWindow.h"
#include "platform/Pasteboard.h"
#include "platform/Pointer.h"
#include "platform/Screens.h"
#include "platform/SessionLock.h"
#include "platform/TrayArea.h"
#include "platform/WindowFrame.h"

#include <memory>

class QWindow;

namespace ravelo {

/// All that one kind of display server provides; each adapter makes one. Owns what it hands out,
/// but for panel windows and frames, which must go before it does.
class DisplayServer {
public:
    virtual ~DisplayServer() = default;

    [[nodiscard]] virtual Pasteboard& pasteboard() = 0;
    [[nodiscard]] virtual Pointer& pointer() = 0;
    [[nodiscard]] virtual DragMonitor& drags() = 0;
    [[nodiscard]] virtual Screens& screens() = 0;
    [[nodiscard]] virtual EdgeBarrier& barrier() = 0;

    /// As far as the display server itself is told of a locked screen.
    [[nodiscard]] virtual SessionLock& lock() = 0;

    /// Locked while another program's window hides the screen that the panel is on.
    [[nodiscard]] virtual SessionLock& cover() = 0;

    [[nodiscard]] virtual InputGrab& inputGrab() = 0;
    [[nodiscard]] virtual MotionPreference& motion() = 0;
    [[nodiscard]] virtual IconPreference& icons() = 0;
    [[nodiscard]] virtual TrayArea& tray() = 0;

    /// Makes the panel out of `window`, which must not have been shown yet and must outlive it.
    [[nodiscard]] virtual std::unique_ptr<PanelWindow> panelWindow(QWindow& window) = 0;

    /// See MakeWindowFrame.
    [[nodiscard]] virtual std::unique_ptr<WindowFrame> windowFrame(QWindow& window) = 0;
};

} // namespace ravelo
