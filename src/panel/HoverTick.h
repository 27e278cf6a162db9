#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <functional>

namespace ravelo {

class Pointer;

/// The 20 ms tick that watches the pointer. While nothing moves it rests, at no cost, until the
/// pointer moves or it is woken. It runs at the same instants as a tick that never rests, and once
/// more at the motion that ends its rest, so that opening need not wait. Main thread only.
class HoverTick {
public:
    enum class Rest { never, whenStill };

    /// What a tick found: whether anything had moved since the one before, or must be looked at
    /// again all the same.
    enum class Next { still, busy };

    HoverTick(Scheduler& scheduler, Pointer& pointer, Rest rest, std::function<Next()> evaluate);

    /// Something has changed that the next tick must see.
    void wake();

    /// The same, for what must not wait: one more tick comes at once.
    void wakeNow();

private:
    void awake();
    void schedule();
    void run();

    Scheduler& scheduler_;
    Pointer& pointer_;
    Rest rest_;
    std::function<Next()> evaluate_;
    Seconds origin_;
    int stillTicks_ = 0;
    Handle next_;
    Handle activity_;
};

} // namespace ravelo
