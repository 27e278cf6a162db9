#pragma once

#include "base/Date.h"
#include "base/Handle.h"

#include <chrono>
#include <functional>

namespace ravelo {

using Seconds = std::chrono::duration<double>;

/// The only source of time and of delayed work. Main thread only; callbacks run there, never from
/// within the call that asked for them.
class Scheduler {
public:
    virtual ~Scheduler() = default;

    /// Wall clock. It jumps when the user or the network sets it.
    [[nodiscard]] virtual Date now() const = 0;

    /// Time since the machine started. Never jumps and goes on while the machine sleeps.
    [[nodiscard]] virtual Seconds uptime() const = 0;

    /// Runs `action` once, `delay` from now.
    [[nodiscard]] virtual Handle after(Seconds delay, std::function<void()> action) = 0;

    /// Runs `action` every `interval`, first one interval from now, until the handle is dropped.
    [[nodiscard]] virtual Handle every(Seconds interval, std::function<void()> action) = 0;
};

} // namespace ravelo
