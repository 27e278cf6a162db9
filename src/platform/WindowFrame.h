#pragma once

#include "base/Handle.h"

#include <QMargins>

#include <functional>
#include <memory>

class QWindow;

namespace ravelo {

/// What a window of our own that the desktop manages has around its frame: room for a shadow that
/// it paints itself. Main thread.
class WindowFrame {
public:
    virtual ~WindowFrame() = default;

    /// Whether what is behind shows through where the window is transparent: else no shadow.
    [[nodiscard]] virtual bool isTranslucent() const = 0;

    [[nodiscard]] virtual Handle onTranslucencyChange(std::function<void()> callback) = 0;

    /// How much of the window, at its present size, is only shadow, in logical pixels: presses
    /// there reach what is behind, and a desktop that knows of it places and snaps the frame alone.
    virtual void setRoom(QMargins room) = 0;
};

/// Makes it for a window that has not been shown yet and outlives it.
using MakeWindowFrame = std::function<std::unique_ptr<WindowFrame>(QWindow&)>;

} // namespace ravelo
