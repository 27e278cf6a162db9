#pragma once

namespace ravelo {

/// Turns the computer off. Main thread.
class ShutDown {
public:
    virtual ~ShutDown() = default;

    /// Asks the system, which may ask the user for leave, or refuse. Waits for nothing; a failure
    /// is silent.
    virtual void request() = 0;
};

} // namespace ravelo
