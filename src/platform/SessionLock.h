#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Whether the session is locked or its screen saver is shown, as far as one service knows. Main
/// thread.
class SessionLock {
public:
    virtual ~SessionLock() = default;

    /// False until the service has answered, and if there is none.
    [[nodiscard]] virtual bool isLocked() const = 0;

    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
