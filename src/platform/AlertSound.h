#pragma once

namespace ravelo {

/// The desktop's short sound for something that is complete. Main thread.
class AlertSound {
public:
    virtual ~AlertSound() = default;

    /// Never blocks. Silently does nothing if no sound can be played, or while an earlier one has
    /// not started yet.
    virtual void play() = 0;
};

} // namespace ravelo
