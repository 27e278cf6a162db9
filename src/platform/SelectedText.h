#pragma once

#include "platform/Pasteboard.h"

namespace ravelo {

/// The text that is selected somewhere, as programs offer it for the middle mouse button (on X11
/// the PRIMARY selection, ICCCM 2). Main thread.
class SelectedText {
public:
    enum class Watch { off, on };

    virtual ~SelectedText() = default;

    /// Off at first: while it is off, selecting costs nothing here.
    virtual void setWatch(Watch watch) = 0;

    /// Called soon after each change in another program while it is watched; many times while the
    /// user selects.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;

    /// See Pasteboard::read; the change count is 0.
    [[nodiscard]] virtual Handle read(PasteboardPlan plan,
                                      std::function<void(PasteboardSnapshot)> done) = 0;
};

} // namespace ravelo
