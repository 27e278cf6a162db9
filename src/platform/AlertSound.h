#pragma once

namespace ravelo {

/// The short sound by which the desktop says that something is done. Main thread.
class AlertSound {
public:
    virtual ~AlertSound() = default;

    /// Waits for nothing. Silently nothing where there is no sound to be had, and while an earlier
    /// one has not begun yet.
    virtual void play() = 0;
};

} // namespace ravelo
