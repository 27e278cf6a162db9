#pragma once

#include "platform/PasteKeys.h"

namespace ravelo::wayland {

class Surfaces;
class WaylandPasteboard;

/// Types by a virtual keyboard, if the compositor offers one and reports which window is active, as
/// those made with wlroots do. Main thread.
class WaylandPasteKeys final : public PasteKeys {
public:
    /// Both must outlive it.
    WaylandPasteKeys(Surfaces& surfaces, const WaylandPasteboard& pasteboard)
        : surfaces_(surfaces), pasteboard_(pasteboard) {}

    [[nodiscard]] bool isPossible() const override;
    [[nodiscard]] std::optional<Target> target() override;

    /// Without the keyboard we cannot know which modifiers the user holds. Our own keyboard sends
    /// its own, and the compositor passes on those of the keyboard that was used last.
    [[nodiscard]] Readiness readiness(const Target& target) override;

    /// Asks the compositor once more which window is active. It may still change before the keys
    /// arrive: there is no way to prevent that.
    void press(const Target& target, PasteChord chord) override;

private:
    Surfaces& surfaces_;
    const WaylandPasteboard& pasteboard_;
};

} // namespace ravelo::wayland
