#pragma once

#include "platform/x11/selection/SelectionTransfer.h"

#include <deque>
#include <memory>
#include <optional>

namespace ravelo::x11 {

/// What is asked of the owner of a selection, step by step.
class Conversation {
public:
    virtual ~Conversation() = default;

    /// What to ask for next; nothing ends the conversation.
    [[nodiscard]] virtual std::optional<TransferRequest> next() = 0;

    /// What came of it.
    virtual void take(TransferResult result) = 0;

    /// Called once, at the end; not if the conversation was dropped.
    virtual void finish() = 0;
};

/// Holds conversations with the owners of one selection, one after the other. A state machine that
/// is given events and the time.
class SelectionReader {
public:
    /// Chosen by the caller, for `cancel`.
    using Key = quint64;

    SelectionReader(Connection& connection, xcb_atom_t selection)
        : connection_(connection), selection_(selection) {}

    void add(Key key, std::unique_ptr<Conversation> conversation);
    void cancel(Key key);

    /// Drops all conversations: they were with another owner. `time` is the server's time at which
    /// the new one took the selection.
    void ownerChanged(xcb_timestamp_t time);

    void handle(const xcb_generic_event_t& event);
    [[nodiscard]] std::optional<TimePoint> deadline() const;
    void expire(TimePoint now);

private:
    struct Entry {
        Key key;
        std::unique_ptr<Conversation> conversation;
    };

    void proceed();
    void dropTransfer();

    Connection& connection_;
    xcb_atom_t selection_;
    xcb_timestamp_t time_ = XCB_CURRENT_TIME;
    std::deque<Entry> entries_; ///< The first one is under way.
    std::optional<SelectionTransfer> transfer_;
    std::deque<RequestorWindow> abandoned_; ///< A few of the newest.
};

} // namespace ravelo::x11
