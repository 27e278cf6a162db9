#include "panel/HoverTick.h"

#include "platform/Pointer.h"

#include <cmath>

namespace ravelo {

namespace {

constexpr Seconds interval{0.02};

// After this many still ticks the platform is asked to report the next motion; one more tick then
// sees what may have moved before it listened.
constexpr int ticksUntilListening = 3;

} // namespace

HoverTick::HoverTick(Scheduler& scheduler, Pointer& pointer, Rest rest,
                     std::function<Next()> evaluate)
    : scheduler_(scheduler),
      pointer_(pointer),
      rest_(rest),
      evaluate_(std::move(evaluate)),
      origin_(scheduler.uptime()) {
    wake();
}

void HoverTick::wake() {
    awake();
    schedule();
}

void HoverTick::wakeNow() {
    awake();
    next_ = scheduler_.after(Seconds(0), [this] { run(); });
}

void HoverTick::awake() {
    stillTicks_ = 0;
    activity_.reset();
}

void HoverTick::schedule() {
    if (next_) {
        return;
    }
    // The first instant after now on the grid of a tick that never rested.
    const double passed = std::floor((scheduler_.uptime() - origin_) / interval + 1e-6);
    const Seconds due = origin_ + (passed + 1) * interval;
    next_ = scheduler_.after(due - scheduler_.uptime(), [this] { run(); });
}

void HoverTick::run() {
    next_.reset();
    const bool still = evaluate_() == Next::still && rest_ == Rest::whenStill;
    stillTicks_ = still ? stillTicks_ + 1 : 0;
    if (stillTicks_ > ticksUntilListening) {
        return;
    }
    if (stillTicks_ == ticksUntilListening) {
        activity_ = pointer_.onNextActivity([this] { wakeNow(); });
    }
    schedule();
}

} // namespace ravelo
