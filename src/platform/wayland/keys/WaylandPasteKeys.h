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

    /// The user's modifiers do not matter to a keyboard of our own.
    [[nodiscard]] Readiness readiness(const Target& target) override;
    void press(const Target& target, PasteChord chord) override;

private:
    Surfaces& surfaces_;
    const WaylandPasteboard& pasteboard_;
};

} // namespace ravelo::wayland
