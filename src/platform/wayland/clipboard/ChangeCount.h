#pragma once

#include "platform/Pasteboard.h"

#include <chrono>
#include <mutex>
#include <optional>

namespace ravelo::wayland {

/// Counts the changes of the clipboard that its thread sees, and our own, which are counted on the
/// main thread before they are made. What others did before a write of ours is overwritten by it,
/// so it is not counted after it. Any thread.
class ChangeCount {
public:
    [[nodiscard]] qint64 value() const {
        const std::scoped_lock lock(mutex_);
        return value_;
    }

    /// A write of ours is about to happen. Returns its number, for `settle`.
    qint64 countOwn() {
        const std::scoped_lock lock(mutex_);
        emptied_.reset();
        newestOwn_ = ++value_;
        return value_;
    }

    /// That write, and so every earlier one, has been made or refused.
    void settle(qint64 own) {
        const std::scoped_lock lock(mutex_);
        settledOwn_ = std::max(settledOwn_, own);
    }

    /// Whether a write of ours has not been made yet.
    [[nodiscard]] bool isOwnPending() const {
        const std::scoped_lock lock(mutex_);
        return isPending();
    }

    /// Whether the last change was a write of ours, and has been made.
    [[nodiscard]] bool isOwn() const {
        const std::scoped_lock lock(mutex_);
        return value_ == newestOwn_ && value_ > 0 && !isPending();
    }

    /// Somebody else copied. False if a write of ours overwrites that.
    bool countForeign() {
        const std::scoped_lock lock(mutex_);
        if (isPending()) {
            return false;
        }
        emptied_.reset();
        ++value_;
        lastCame_ = Clock::now();
        return true;
    }

    /// The contents are gone. False as above.
    bool countEmptied() {
        const std::scoped_lock lock(mutex_);
        if (isPending()) {
            return false;
        }
        emptied_ = value_++;
        lastEnd_ = {*emptied_, Clock::now()};
        return true;
    }

    /// The value for contents that are gone, if that was the last change.
    [[nodiscard]] std::optional<qint64> emptied() const {
        const std::scoped_lock lock(mutex_);
        return emptied_;
    }

    /// The last time that contents went, for questions about those that came after.
    [[nodiscard]] std::optional<OwnerEnd> lastEnd() const {
        const std::scoped_lock lock(mutex_);
        return lastEnd_ ? std::optional(OwnerEnd{lastEnd_->value, lastCame_ - lastEnd_->time})
                        : std::nullopt;
    }

private:
    using Clock = std::chrono::steady_clock;

    struct End {
        qint64 value;
        Clock::time_point time;
    };

    [[nodiscard]] bool isPending() const { return newestOwn_ > settledOwn_; }

    mutable std::mutex mutex_;
    qint64 value_ = 0;
    qint64 newestOwn_ = 0;
    qint64 settledOwn_ = 0;
    std::optional<qint64> emptied_;
    std::optional<End> lastEnd_;
    Clock::time_point lastCame_;
};

} // namespace ravelo::wayland
