#include "platform/x11/selection/SaveRequests.h"

#include "platform/x11/connection/Events.h"

#include <utility>

namespace ravelo::x11 {

namespace {

/// As long as Qt waits; GTK waits for ten seconds.
constexpr std::chrono::seconds timeout(5);

/// Several programs may be exiting, but nobody may fill our memory.
constexpr std::size_t maxWaiting = 32;

/// Obsolete clients name no property (ICCCM 2.2).
xcb_atom_t propertyOf(const xcb_selection_request_event_t& request) {
    return request.property == XCB_ATOM_NONE ? request.target : request.property;
}

xcb_window_t createWindow(Connection& connection) {
    const xcb_window_t window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), 0, window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

} // namespace

SaveRequests::SaveRequests(Connection& connection, OwnClient own, std::function<void()> asked)
    : connection_(connection),
      own_(own),
      asked_(std::move(asked)),
      noticeType_(connection.xfixesFirstEvent() + XCB_XFIXES_SELECTION_NOTIFY),
      selection_(connection.atom("CLIPBOARD_MANAGER")),
      window_(createWindow(connection)) {
    xcb_xfixes_select_selection_input(connection.get(), connection.root(), selection_,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const auto cookie = xcb_get_selection_owner(connection.get(), selection_);
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection.get(), cookie, nullptr));
    manager_ = reply ? reply->owner : XCB_NONE;
    if (manager_ == XCB_NONE) {
        claim(XCB_CURRENT_TIME);
    }
}

SaveRequests::~SaveRequests() {
    answer(SaveAnswer::refused);
    xcb_destroy_window(connection_.get(), window_);
    const Owned<xcb_get_input_focus_reply_t> done(xcb_get_input_focus_reply(
        connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

/// Has no effect if somebody else has become the manager after `time`.
void SaveRequests::claim(xcb_timestamp_t time) {
    xcb_set_selection_owner(connection_.get(), window_, selection_, time);
    xcb_flush(connection_.get());
}

void SaveRequests::answer(SaveAnswer answer) {
    for (const Waiting& waiting : std::exchange(waiting_, {})) {
        reply(waiting.request, answer);
    }
    xcb_flush(connection_.get());
}

void SaveRequests::ownerChanged(xcb_window_t owner) {
    clipboardOwner_ = own_.owns(owner) ? XCB_NONE : owner;
    answer(SaveAnswer::refused);
}

PasteboardOwner SaveRequests::owner() const {
    if (clipboardOwner_ == XCB_NONE) {
        return {};
    }
    const bool isManager = manager_ != XCB_NONE && manager_ != window_ &&
                           own_.clientOf(manager_) == own_.clientOf(clipboardOwner_);
    return {own_.clientOf(clipboardOwner_),
            isManager ? PasteboardOwner::Kind::manager : PasteboardOwner::Kind::program,
            {}};
}

void SaveRequests::handle(const xcb_generic_event_t& event) {
    if (const auto* notice = eventAs<xcb_xfixes_selection_notify_event_t>(event, noticeType_)) {
        if (notice->selection == selection_) {
            managerChanged(*notice);
        }
    } else if (const auto* request =
                   eventAs<xcb_selection_request_event_t>(event, XCB_SELECTION_REQUEST)) {
        if (request->selection == selection_ && request->owner == window_) {
            serve(*request);
        }
    }
}

void SaveRequests::managerChanged(const xcb_xfixes_selection_notify_event_t& notice) {
    manager_ = notice.owner;
    if (manager_ == window_) {
        since_ = notice.selection_timestamp;
        announce();
    } else if (manager_ == XCB_NONE) {
        claim(notice.timestamp);
    }
}

/// For programs that wait for a manager.
void SaveRequests::announce() {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = connection_.root();
    message.type = connection_.atom("MANAGER");
    message.data.data32[0] = since_;
    message.data.data32[1] = selection_;
    message.data.data32[2] = window_;
    xcb_send_event(connection_.get(), 0, connection_.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection_.get());
}

void SaveRequests::serve(const xcb_selection_request_event_t& request) {
    const xcb_atom_t targets = connection_.atom("TARGETS");
    const xcb_atom_t timestamp = connection_.atom("TIMESTAMP");
    const xcb_atom_t saveTargets = connection_.atom("SAVE_TARGETS");
    if (request.target == saveTargets && waiting_.size() < maxWaiting) {
        waiting_.push_back({request, std::chrono::steady_clock::now() + timeout});
        asked_();
        return;
    }
    auto known = SaveAnswer::saved;
    if (request.target == targets) {
        setProperty(request, XCB_ATOM_ATOM, {targets, timestamp, saveTargets});
    } else if (request.target == timestamp) {
        setProperty(request, XCB_ATOM_INTEGER, {since_});
    } else {
        known = SaveAnswer::refused;
    }
    reply(request, known);
    xcb_flush(connection_.get());
}

void SaveRequests::setProperty(const xcb_selection_request_event_t& request, xcb_atom_t type,
                               const std::vector<uint32_t>& values) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, request.requestor,
                        propertyOf(request), type, 32, static_cast<uint32_t>(values.size()),
                        values.data());
}

void SaveRequests::reply(const xcb_selection_request_event_t& request, SaveAnswer answer) {
    if (answer == SaveAnswer::saved && request.target == connection_.atom("SAVE_TARGETS")) {
        setProperty(request, connection_.atom("NULL"), {});
    }
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    if (answer == SaveAnswer::saved) {
        notice.property = propertyOf(request);
    }
    xcb_send_event(connection_.get(), 0, request.requestor, 0,
                   reinterpret_cast<const char*>(&notice));
}

std::optional<TimePoint> SaveRequests::deadline() const {
    return waiting_.empty() ? std::nullopt : std::optional(waiting_.front().deadline);
}

void SaveRequests::expire(TimePoint now) {
    while (!waiting_.empty() && waiting_.front().deadline <= now) {
        reply(waiting_.front().request, SaveAnswer::refused);
        waiting_.erase(waiting_.begin());
    }
    xcb_flush(connection_.get());
}

} // namespace ravelo::x11
