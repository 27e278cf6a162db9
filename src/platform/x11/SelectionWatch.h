#pragma once

#include "platform/x11/Listener.h"
#include "platform/x11/SelectionReader.h"

#include <functional>

namespace ravelo::x11 {

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

    SelectionWatch(Connection& connection, const QByteArray& selection, Callback changed);

    [[nodiscard]] SelectionReader& reader() { return reader_; }

    void handle(const xcb_generic_event_t& event) override;

    [[nodiscard]] std::optional<TimePoint> deadline() const override { return reader_.deadline(); }

    void expire(TimePoint now) override { reader_.expire(now); }

private:
    uint8_t noticeType_;
    xcb_atom_t selection_;
    Callback changed_;
    SelectionReader reader_;
};

} // namespace ravelo::x11
