#pragma once

#include "platform/DragMonitor.h"
#include "platform/EdgeBarrier.h"
#include "platform/InputGrab.h"
#include "platform/PanelWindow.h"
#include "platform/PasteKeys.h"
#include "platform/Pasteboard.h"
#include "platform/Screens.h"
#include "platform/SelectedText.h"
#include "platform/SessionLock.h"
#include "platform/WindowFrame.h"

#include <memory>
#include <vector>

class QWindow;

namespace ravelo {

/// What one kind of display server provides; each adapter makes one. Owns what it returns except
/// for panel windows and frames, which must be destroyed before it.
class DisplayServer {
public:
    virtual ~DisplayServer() = default;

    [[nodiscard]] virtual Pasteboard& pasteboard() = 0;
    [[nodiscard]] virtual DragMonitor& drags() = 0;

    /// Null if programs cannot see what is selected in others.
    [[nodiscard]] virtual SelectedText* selectedText() { return nullptr; }

    [[nodiscard]] virtual Screens& screens() = 0;

    /// Null if it cannot hold the pointer.
    [[nodiscard]] virtual EdgeBarrier* barrier() = 0;

    [[nodiscard]] virtual InputGrab& inputGrab() = 0;

    /// Null if it lets no program type.
    [[nodiscard]] virtual PasteKeys* pasteKeys() { return nullptr; }

    /// The signs of a locked screen that the display server itself knows of.
    [[nodiscard]] virtual std::vector<SessionLock*> locks() = 0;

    /// Makes the panel out of `window`, which must not have been shown yet and must outlive it.
    [[nodiscard]] virtual std::unique_ptr<PanelWindow> panelWindow(QWindow& window) = 0;

    /// See MakeWindowFrame.
    [[nodiscard]] virtual std::unique_ptr<WindowFrame> windowFrame(QWindow& window) = 0;
};

} // namespace ravelo
