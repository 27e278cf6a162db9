#pragma once

#include "platform/Pasteboard.h"
#include "platform/x11/connection/Connection.h"
#include "platform/x11/connection/Listener.h"

#include <xcb/xfixes.h>

#include <functional>
#include <optional>
#include <vector>

namespace ravelo::x11 {

/// The session's clipboard manager if there is no other (freedesktop's clipboard-manager
/// protocol, ICCCM 2.8): a program that is about to end asks the owner of CLIPBOARD_MANAGER
/// for SAVE_TARGETS and waits for the answer. Whoever wants the role gets it; we have it again once
/// its owner has given it up or ended.
///
/// The list of targets that may come with a request is not looked at: what is kept of a copy does
/// not depend on it.
class SaveRequests final : public EventHandler {
public:
    /// `asked` is called on the listener's thread, once the program waits for `answer`.
    SaveRequests(Connection& connection, OwnClient own, std::function<void()> asked);

    SaveRequests(const SaveRequests&) = delete;
    SaveRequests& operator=(const SaveRequests&) = delete;

    /// Waits for the server: Qt asks when we exit ourselves and must find no manager.
    ~SaveRequests() override;

    /// Answers all that wait; on the listener's thread.
    void answer(SaveAnswer answer);

    /// The clipboard has another owner, or none: what was to be saved is gone.
    void ownerChanged(xcb_window_t owner);

    /// Who has the clipboard; on the listener's thread.
    [[nodiscard]] PasteboardOwner owner() const;

    /// Its window; none if it is ours.
    [[nodiscard]] xcb_window_t ownerWindow() const { return clipboardOwner_; }

    void handle(const xcb_generic_event_t& event) override;
    [[nodiscard]] std::optional<TimePoint> deadline() const override;
    void expire(TimePoint now) override;

private:
    struct Waiting {
        xcb_selection_request_event_t request;
        TimePoint deadline;
    };

    void claim(xcb_timestamp_t time);
    void managerChanged(const xcb_xfixes_selection_notify_event_t& notice);
    void announce();
    void serve(const xcb_selection_request_event_t& request);
    void setProperty(const xcb_selection_request_event_t& request, xcb_atom_t type,
                     const std::vector<uint32_t>& values);
    void reply(const xcb_selection_request_event_t& request, SaveAnswer answer);

    Connection& connection_;
    OwnClient own_;
    std::function<void()> asked_;
    const uint8_t noticeType_;
    const xcb_atom_t selection_;
    const xcb_window_t window_;
    xcb_window_t manager_ = XCB_NONE;
    xcb_timestamp_t since_ = XCB_CURRENT_TIME; ///< When we became the manager.
    xcb_window_t clipboardOwner_ = XCB_NONE;   ///< None while it is ours.
    std::vector<Waiting> waiting_;
};

} // namespace ravelo::x11
