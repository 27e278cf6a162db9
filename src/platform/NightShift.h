#pragma once

namespace ravelo {

/// The user's own night-shift script, which blanks the screen and continues pending work. Main
/// thread.
class NightShift {
public:
    virtual ~NightShift() = default;

    /// Starts it once more. Never blocks; failures are silent.
    virtual void start() = 0;
};

} // namespace ravelo
