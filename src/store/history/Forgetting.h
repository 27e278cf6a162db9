#pragma once

#include "base/Scheduler.h"
#include "store/Records.h"

#include <QHash>

#include <functional>
#include <optional>

namespace ravelo {

/// Ends the life of secrets, which exist in memory only, a fixed time after they were copied, also
/// if the wall clock is set meanwhile. Main thread.
class Forgetting {
public:
    /// `forget` gets the ids of clips whose time is over.
    Forgetting(Scheduler& scheduler, std::function<void(const QList<QUuid>&)> forget)
        : scheduler_(scheduler), forget_(std::move(forget)) {}

    /// Applies from the next `follow`. Without it, secrets stay as long as the program runs.
    void setAfter(std::optional<Seconds> after) { after_ = after; }

    /// The time left until that clip is forgotten; nothing if it never is.
    [[nodiscard]] std::optional<Seconds> left(const ClipItem& clip) const;

    /// To be called when the clips or the time have changed.
    void follow(const QList<ClipItem>& clips);

private:
    [[nodiscard]] Seconds left(Seconds since) const;
    void await();

    Scheduler& scheduler_;
    std::function<void(const QList<QUuid>&)> forget_;
    std::optional<Seconds> after_;
    /// Uptime when each came. Not the clips: a deleted one must not stay in memory here.
    QHash<QUuid, Seconds> since_;
    Handle next_;
};

} // namespace ravelo
