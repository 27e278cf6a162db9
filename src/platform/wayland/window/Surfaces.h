#pragma once

#include "platform/wayland/input/DropTarget.h"
#include "platform/wayland/input/InputSeat.h"
#include "platform/wayland/keys/ActiveWindow.h"
#include "platform/wayland/window/BlurBehind.h"
#include "platform/wayland/window/InvisibleSurface.h"

class QScreen;

namespace ravelo::wayland {

/// What surfaces are made of, and what is reported about them, all on Qt's connection. Main thread.
class Surfaces {
public:
    /// An error if the compositor has no layer shell. `thread` must outlive this.
    [[nodiscard]] static Result<std::unique_ptr<Surfaces>> create(ClipboardThread& thread);

    [[nodiscard]] zwlr_layer_shell_v1& shell() { return *shell_; }

    [[nodiscard]] BlurBehind& blur() { return blur_; }

    [[nodiscard]] InputSeat& seat() { return seat_; }

    [[nodiscard]] ActiveWindow& activeWindow() { return activeWindow_; }

    [[nodiscard]] const Globals& globals() const { return *globals_; }

    [[nodiscard]] DropTarget& drops() { return drops_; }

    /// Lockers are surfaces in the overlay layer like ours, and above only those that came later:
    /// as on sway before 1.8, which has no protocol for lockers (ext-session-lock).
    [[nodiscard]] bool coverLockers() const { return coverLockers_; }

    /// A press elsewhere takes the keyboard from a surface that has it, as on KWin.
    [[nodiscard]] bool loseKeyboardByPress() const { return loseKeyboardByPress_; }

    /// Qt draws for any scale, and has the compositor fit its buffers into the surface.
    [[nodiscard]] bool fitBuffers() const { return fitBuffers_; }

    /// See InvisibleSurface; null if the compositor cannot do it.
    [[nodiscard]] std::unique_ptr<InvisibleSurface> makeInvisible(QScreen* screen, QSize size);

private:
    Surfaces(std::unique_ptr<Globals> globals, LayerShell shell, ClipboardThread& thread);

    std::unique_ptr<Globals> globals_;
    LayerShell shell_;
    bool coverLockers_;
    bool loseKeyboardByPress_;
    bool fitBuffers_;
    std::unique_ptr<InvisiblePixel> pixel_; ///< Or null.
    BlurBehind blur_;
    InputSeat seat_;
    ActiveWindow activeWindow_;
    DropTarget drops_;
};

} // namespace ravelo::wayland
