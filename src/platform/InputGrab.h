#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// The exclusive grab of pointer and keyboard that one program may have: screen lockers keep it as
/// long as they lock, menus for a moment. Main thread.
class InputGrab {
public:
    virtual ~InputGrab() = default;

    /// Whether another program holds the pointer and the keyboard now. Two round trips at most.
    [[nodiscard]] virtual bool isHeldByAnother() = 0;

    /// Called when another program has shown a window of the kind that lockers and menus use: it
    /// may grab the input now or a few milliseconds later.
    [[nodiscard]] virtual Handle onLikelyTaken(std::function<void()> callback) = 0;
};

} // namespace ravelo
