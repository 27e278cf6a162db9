#pragma once

#include "base/Date.h"
#include "base/Handle.h"

#include <chrono>
#include <functional>

namespace ravelo {

using Seconds = std::chrono::duration<double>;

/// The only source of time and of delayed work. Main thread; never runs a callback from within the
/// call that scheduled it.
class Scheduler {
public:
    virtual ~Scheduler() = default;

    /// The wall clock, which jumps when it is set.
    [[nodiscard]] virtual Date now() const = 0;

    /// Time since boot, including time asleep. Never jumps.
    [[nodiscard]] virtual Seconds uptime() const = 0;

    /// Runs `action` once, after `delay`.
    [[nodiscard]] virtual Handle after(Seconds delay, std::function<void()> action) = 0;

    /// Runs `action` every `interval`, first after one interval, until the handle is dropped.
    [[nodiscard]] virtual Handle every(Seconds interval, std::function<void()> action) = 0;
};

} // namespace ravelo
