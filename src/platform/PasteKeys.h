#pragma once

#include "base/Handle.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace ravelo {

/// Keys that paste. `shiftInsert` is for terminals that paste what is selected.
enum class PasteChord { controlV, controlShiftV, shiftInsert };

/// What the user says to programs that type, on desktops that ask them.
enum class TypingPermission {
    notNeeded,
    unasked, ///< The desktop asks when the keys are typed.
    given,
    refused,
    unavailable, ///< Nobody answered who could ask the user.
};

/// Types the keys that paste into the window that had the keyboard before the panel. Main thread.
class PasteKeys {
public:
    struct Target {
        quint64 id;        ///< The adapter's own.
        QStringList names; ///< App id, or class and instance of its window.
    };

    /// What has to be true before keys are typed.
    struct Readiness {
        bool modifiersUp;    ///< The user holds none that the keys would be mixed with.
        bool ownsPasteboard; ///< Its contents are ours.
        bool focused;        ///< The target has the keyboard.

        [[nodiscard]] bool isComplete() const { return modifiersUp && ownsPasteboard && focused; }
    };

    virtual ~PasteKeys() = default;

    /// Whether this display server lets us type at all.
    [[nodiscard]] virtual bool isPossible() const = 0;

    /// The window that gets the keyboard when the panel gives it back; nothing if that is not
    /// known.
    [[nodiscard]] virtual std::optional<Target> target() = 0;

    [[nodiscard]] virtual Readiness readiness(const Target& target) = 0;

    /// Types the keys, unless something of `readiness` is no longer true. If the desktop asks the
    /// user first, the keys follow the answer.
    virtual void press(const Target& target, PasteChord chord) = 0;

    [[nodiscard]] virtual TypingPermission permission() const {
        return TypingPermission::notNeeded;
    }

    // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it.
    [[nodiscard]] virtual Handle onPermissionChange(std::function<void()> /*callback*/) {
        return {};
    }

    /// After a refusal: the desktop may ask again when keys are typed next.
    virtual void forgetRefusal() {}
};

} // namespace ravelo
