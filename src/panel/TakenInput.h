#pragma once

#include "base/Scheduler.h"

#include <cstddef>
#include <functional>

namespace ravelo {

class InputGrab;

/// Notices that a locker takes pointer and keyboard, which none of them announces: it shows a
/// window first and takes the input a few milliseconds later, a slow one a little later still.
class TakenInput {
public:
    enum class Look { again, enough };

    /// `look` is called right after each sign and then a few times within a third of a second,
    /// until it has seen enough.
    TakenInput(Scheduler& scheduler, InputGrab& input, std::function<Look()> look);

private:
    void lookAfter(std::size_t looks);

    Scheduler& scheduler_;
    std::function<Look()> look_;
    Handle next_;
    Handle signs_;
};

} // namespace ravelo
