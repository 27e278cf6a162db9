#pragma once

#include "platform/Pasteboard.h"
#include "platform/x11/connection/Listener.h"
#include "platform/x11/selection/SelectionReader.h"

#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>

namespace ravelo::x11 {

/// Counts the changes of a selection that its listener sees, and our own, which the listener
/// sees only later. What others did before a write of ours has been overwritten by it, so it is
/// not counted after it, however late its event comes.
///
/// Sequence numbers of the listener's connection put both in order: the server stamps every event
/// with the last request it has done for that connection.
class ChangeCounter {
public:
    /// Any thread.
    [[nodiscard]] qint64 value() const { return value_; }

    /// Someone else took the selection or gave it up. False if a write of ours came later.
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

    /// The value for contents that went by a death, if that was the last change. Any thread.
    [[nodiscard]] std::optional<qint64> orphaned() const {
        const std::scoped_lock lock(mutex_);
        return orphaned_;
    }

    /// The last death, for questions about the owner that came after it. Any thread.
    [[nodiscard]] std::optional<OwnerEnd> lastEnd() const {
        const std::scoped_lock lock(mutex_);
        return lastEnd_ ? std::optional(OwnerEnd{lastEnd_->value, lastCame_ - lastEnd_->time})
                        : std::nullopt;
    }

    /// Something changed for sure, or is about to: a write of ours is counted before it is done, so
    /// that nobody who expects the contents before it gets those after it.
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
        orphaned_.reset(); // A death of earlier contents may have been counted meanwhile.
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

/// A selection has a new owner, or none any more (XFixes SelectionNotify).
struct OwnerChange {
    enum class Cause { request, death };

    Cause cause = Cause::request; ///< A client asked for it, or the owner is gone.
    xcb_window_t owner = XCB_NONE;
    uint32_t sequence = 0; ///< The last request of the listener's that the server did before.
    xcb_timestamp_t time = XCB_CURRENT_TIME; ///< The server's, at which it took the selection.
};

/// Sees the owners of one selection change, and reads from them. Made before the listener starts,
/// then on its thread.
class SelectionWatch final : public EventHandler {
public:
    using Callback = std::function<void(const OwnerChange&)>;

    enum class Listens { now, later };

    SelectionWatch(Connection& connection, const QByteArray& selection, Callback changed,
                   Listens listens = Listens::now);

    /// Any thread.
    void listen(Listens listens);

    [[nodiscard]] SelectionReader& reader() { return reader_; }

    void handle(const xcb_generic_event_t& event) override;

    [[nodiscard]] std::optional<TimePoint> deadline() const override { return reader_.deadline(); }

    void expire(TimePoint now) override { reader_.expire(now); }

private:
    Connection& connection_;
    uint8_t noticeType_;
    xcb_atom_t selection_;
    Callback changed_;
    SelectionReader reader_;
};

} // namespace ravelo::x11
