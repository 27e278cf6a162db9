#pragma once

namespace ravelo {

/// The user's own night shift: what blanks the screen and goes on with what is pending. Main
/// thread.
class NightShift {
public:
    virtual ~NightShift() = default;

    /// Starts one more. Waits for nothing; a failure is silent.
    virtual void start() = 0;
};

} // namespace ravelo
