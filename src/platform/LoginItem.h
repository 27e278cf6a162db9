#pragma once

#include "base/Result.h"

#include <functional>

namespace ravelo {

/// Whether the desktop starts this program when the user logs in. Main thread.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// Mends what is enabled but no longer works, say because the program has moved. Calls `done`
    /// if there was something to mend, maybe later.
    virtual void repair(std::function<void(const Result<void>&)> done) { (void)done; }

    [[nodiscard]] virtual Result<void> setEnabled(bool enabled) = 0;
};

} // namespace ravelo
