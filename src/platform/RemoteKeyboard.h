#pragma once

#include "base/Handle.h"
#include "platform/PasteKeys.h"

#include <functional>

namespace ravelo {

/// Types into whichever window has the keyboard, if the user allows it: the desktop asks them. Main
/// thread; never blocks.
class RemoteKeyboard {
public:
    virtual ~RemoteKeyboard() = default;

    /// Never `notNeeded`.
    [[nodiscard]] virtual TypingPermission permission() const = 0;
    [[nodiscard]] virtual Handle onPermissionChange(std::function<void()> callback) = 0;
    virtual void forgetRefusal() = 0;

    /// Prepares for typing, for which the desktop may ask the user as long as they need. `done` is
    /// called once, later, with whether `type` works now; not after the handle was dropped. After a
    /// refusal it fails without a question.
    [[nodiscard]] virtual Handle open(std::function<void(bool)> done) = 0;

    /// How to find the key of a letter: in the user's layout, or where Latin ones have it, which
    /// programs understand if the layout has no such letter.
    enum class Letters { byLayout, byPlace };

    /// While it is open. Nothing for chords that do not paste the clipboard.
    virtual void type(PasteChord chord, Letters letters) = 0;

    /// No more keys for now. Stays open where opening it would mean a question each time.
    virtual void close() = 0;
};

} // namespace ravelo
