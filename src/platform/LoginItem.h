#pragma once

#include "base/Result.h"

#include <functional>

namespace ravelo {

/// Whether the desktop starts this program when the user logs in. Main thread.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// Repairs an entry that no longer works, for example because the program has moved. Calls
    /// `done` if there was something to repair, perhaps later.
    virtual void repair(const std::function<void(const Result<void>&)>& /*done*/) {}

    [[nodiscard]] virtual Result<void> setEnabled(bool enabled) = 0;
};

} // namespace ravelo
