#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Holds the program's system-wide hot key, see GlobalShortcut. Main thread only.
class HotKeyCenter {
public:
    [[nodiscard]] static HotKeyCenter& shared() {
        static HotKeyCenter center;
        return center;
    }

    /// Gives the key back to the desktop.
    void release() { ref.reset(); }

    Handle ref;                     ///< The registered key; dropping it unregisters.
    std::function<void()> onToggle; ///< What the key does.
};

} // namespace ravelo
