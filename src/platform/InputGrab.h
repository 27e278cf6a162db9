#pragma once

#include "base/Handle.h"

#include <functional>

namespace ravelo {

/// The exclusive grab of pointer and keyboard that one program may have: screen lockers keep it as
/// long as they lock, menus for a moment. Main thread.
class InputGrab {
public:
    virtual ~InputGrab() = default;

    /// Whether another program holds the pointer and the keyboard. Two round trips at most.
    using Answer = std::function<bool()>;

    /// Sends the question. The answer comes along with that to whatever is asked next, so the two
    /// cost one round trip.
    [[nodiscard]] virtual Answer ask() = 0;

    [[nodiscard]] bool isHeldByAnother() { return ask()(); }

    /// Called when another program has shown a window of the kind that lockers and menus use: it
    /// may grab the input now or a few milliseconds later.
    [[nodiscard]] virtual Handle onLikelyTaken(std::function<void()> callback) = 0;
};

} // namespace ravelo
