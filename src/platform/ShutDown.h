#pragma once

namespace ravelo {

/// Turns the computer off. Main thread.
class ShutDown {
public:
    virtual ~ShutDown() = default;

    /// Asks the system, which may ask the user for permission, or refuse. Never blocks; failures
    /// are silent.
    virtual void request() = 0;
};

} // namespace ravelo
