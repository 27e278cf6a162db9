#pragma once

#include <QtGlobal>

#include <atomic>
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

    /// Someone else took or left the selection. False where a write of ours came later.
    bool countForeign(uint32_t sequence) {
        const std::scoped_lock lock(mutex_);
        if (ownWrite_ && static_cast<int32_t>(sequence - *ownWrite_) < 0) {
            return false;
        }
        ++value_;
        return true;
    }

    /// A write of ours took effect before the listener's request `sequence`.
    void countOwn(uint32_t sequence) {
        const std::scoped_lock lock(mutex_);
        ownWrite_ = sequence;
        ++value_;
    }

    /// Something changed for sure.
    void count() { ++value_; }

private:
    std::mutex mutex_;
    std::atomic<qint64> value_ = 0;
    std::optional<uint32_t> ownWrite_;
};

} // namespace ravelo::x11
