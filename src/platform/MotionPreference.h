#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Whether the user has asked the desktop for less motion on the screen. Main thread.
class MotionPreference {
public:
    virtual ~MotionPreference() = default;

    /// False where the desktop does not tell.
    [[nodiscard]] virtual bool isReduced() const = 0;

    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
