#pragma once

namespace ravelo {

/// The exclusive hold on pointer and keyboard that one program may have: screen lockers keep both
/// for as long as they lock, menus for a moment. Main thread.
class InputGrab {
public:
    virtual ~InputGrab() = default;

    /// Whether another program holds the pointer and the keyboard now. Two round trips at most.
    [[nodiscard]] virtual bool isHeldByAnother() = 0;
};

} // namespace ravelo
