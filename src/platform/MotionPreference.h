#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// Whether the user has asked the desktop for less animation. Main thread.
class MotionPreference {
public:
    virtual ~MotionPreference() = default;

    /// False if unknown.
    [[nodiscard]] virtual bool isReduced() const = 0;

    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
