#pragma once

#include "platform/x11/connection/Listener.h"
#include "platform/x11/selection/SelectionReader.h"

#include <list>
#include <memory>
#include <optional>

namespace ravelo::x11 {

/// Questions to the sources of drags. Unlike with the clipboard, a question goes on after the
/// selection has got a new owner: the files of an earlier drop may still be on their way. Made
/// before the listener starts, then used on its thread.
class DragReads final : public EventHandler {
public:
    DragReads(Connection& connection, xcb_atom_t selection)
        : connection_(connection), selection_(selection) {}

    /// `time` is the server's time at which the newest source took the selection.
    void sourceChanged(xcb_timestamp_t time) { time_ = time; }

    /// With the newest source, at once, beside those that are under way.
    void begin(std::unique_ptr<Conversation> conversation);

    void handle(const xcb_generic_event_t& event) override;
    [[nodiscard]] std::optional<TimePoint> deadline() const override;
    void expire(TimePoint now) override;

private:
    Connection& connection_;
    xcb_atom_t selection_;
    xcb_timestamp_t time_ = XCB_CURRENT_TIME;
    std::list<SelectionReader> readers_; ///< Oldest first; one a question.
};

} // namespace ravelo::x11
