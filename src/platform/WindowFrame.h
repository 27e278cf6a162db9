#pragma once

#include "base/Handle.h"

#include <QMargins>
#include <QPoint>

#include <functional>
#include <memory>

class QWindow;

namespace ravelo {

/// What the display server has to know of a titled window of our own: where it is, and how much
/// room for a shadow, which the window paints itself, there is around its frame. Main thread.
class WindowFrame {
public:
    virtual ~WindowFrame() = default;

    /// Whether transparent parts of the window show what is behind it. If not, it has no shadow.
    [[nodiscard]] virtual bool isTranslucent() const = 0;

    [[nodiscard]] virtual Handle onTranslucencyChange(std::function<void()> callback) = 0;

    /// How much of the window, at its present size, is only shadow, in logical pixels: presses
    /// there reach what is behind, and desktops that know about it place and snap the frame alone.
    virtual void setRoom(QMargins room) = 0;

    /// Moves the window's top left corner, its room included, to here, in global logical pixels. A
    /// display server may place windows itself and ignore this.
    virtual void moveTo(QPoint corner) = 0;
};

/// For a window that has not been shown yet and outlives its frame.
using MakeWindowFrame = std::function<std::unique_ptr<WindowFrame>(QWindow&)>;

} // namespace ravelo
