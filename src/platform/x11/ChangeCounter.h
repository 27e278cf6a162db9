#pragma once

#include "platform/Pasteboard.h"

#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <optional>

namespace ravelo::x11 {

/// Counts the changes of a selection that its listener hears of, and our own, which the listener
/// hears of only later. What others did before a write of ours has been overwritten by it, so it is
/// not counted after it, however late its notice comes.
///
/// Sequence numbers of the listener's connection put both in order: the server stamps every notice
/// with the last request it has done for that connection.
class ChangeCounter {
public:
    /// Any thread.
    [[nodiscard]] qint64 value() const { return value_; }

    /// Someone else took the selection or gave it up. False where a write of ours came later.
    bool countForeign(uint32_t sequence) {
        const std::scoped_lock lock(mutex_);
        if (isBeforeOwn(sequence)) {
            return false;
        }
        orphaned_.reset();
        ++value_;
        lastCame_ = std::chrono::steady_clock::now();
        return true;
    }

    /// The owner's window or client is gone, and the contents with it. False as above.
    bool countDeath(uint32_t sequence) {
        const std::scoped_lock lock(mutex_);
        if (isBeforeOwn(sequence)) {
            return false;
        }
        orphaned_ = value_++;
        lastEnd_ = {*orphaned_, std::chrono::steady_clock::now()};
        return true;
    }

    /// The value for the contents that went by a death, where that was the last change. Any thread.
    [[nodiscard]] std::optional<qint64> orphaned() const {
        const std::scoped_lock lock(mutex_);
        return orphaned_;
    }

    /// The last death, for who asks about the owner that came after it. Any thread.
    [[nodiscard]] std::optional<OwnerEnd> lastEnd() const {
        const std::scoped_lock lock(mutex_);
        return lastEnd_ ? std::optional(OwnerEnd{lastEnd_->value, lastCame_ - lastEnd_->time})
                        : std::nullopt;
    }

    /// Something changed for sure, or is about to: a write of ours is counted before it is done, so
    /// that nobody who still expects the contents before it is given those after it.
    void count() {
        const std::scoped_lock lock(mutex_);
        orphaned_.reset();
        ++value_;
    }

    /// The write that was counted took effect before the listener's request `sequence`. Returns the
    /// value for it: what else was counted meanwhile came before it, or will be counted again.
    qint64 settleOwn(uint32_t sequence) {
        const std::scoped_lock lock(mutex_);
        ownWrite_ = sequence;
        orphaned_.reset(); // It may have been told meanwhile, of contents before ours.
        return value_;
    }

private:
    [[nodiscard]] bool isBeforeOwn(uint32_t sequence) const {
        return ownWrite_ && static_cast<int32_t>(sequence - *ownWrite_) < 0;
    }

    mutable std::mutex mutex_;
    std::atomic<qint64> value_ = 0;

    struct End {
        qint64 value;
        std::chrono::steady_clock::time_point time;
    };

    std::optional<uint32_t> ownWrite_;
    std::optional<End> lastEnd_;
    std::chrono::steady_clock::time_point lastCame_;
    std::optional<qint64> orphaned_;
};

} // namespace ravelo::x11
