#pragma once

#include "base/Result.h"

namespace ravelo {

/// Whether the desktop starts this program when the user logs in. Main thread.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// Mends what was enabled but no longer works, say because the program has moved.
    [[nodiscard]] virtual Result<void> repair() { return {}; }

    [[nodiscard]] virtual Result<void> setEnabled(bool enabled) = 0;
};

} // namespace ravelo
