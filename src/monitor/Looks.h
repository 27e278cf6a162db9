#pragma once

#include "base/Handle.h"
#include "base/Scheduler.h"

#include <functional>

namespace ravelo {

class FolderChanges;

/// Decides when to look at files again: soon after a change but at most every five seconds, and
/// every five seconds if changes might go unnoticed. Main thread.
class Looks {
public:
    static constexpr Seconds interval{5};

    /// `look` is not called from here. Both references outlive it.
    Looks(Scheduler& scheduler, FolderChanges& changes, std::function<void()> look);

    enum class Watched { yes, no };

    /// Call this after each look, with whether all that it depends on is watched.
    void looked(Watched watched);

    /// No more looks until the next call of `looked`.
    void pause();

    [[nodiscard]] bool isPolling() const { return static_cast<bool>(poll_); }

private:
    void look();

    Scheduler& scheduler_;
    FolderChanges& changes_;
    std::function<void()> look_;
    Seconds last_; ///< Uptime of the last look.
    Handle poll_;
    Handle change_;
    Handle next_;
};

} // namespace ravelo
