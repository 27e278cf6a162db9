#pragma once

#include "platform/x11/connection/Connection.h"
#include "platform/x11/connection/Listener.h"

#include <tl/expected.hpp>

#include <optional>

namespace ravelo::x11 {

/// Bytes of a selection in one form, and the type that the owner gave them.
struct SelectionValue {
    xcb_atom_t type = XCB_ATOM_NONE;
    QByteArray bytes;
};

struct TransferFailure {
    enum Reason { refused, tooSlow, tooLarge };

    Reason reason;
    qint64 bytes = 0; ///< The size of what is too large, or a lower bound.
};

using TransferResult = tl::expected<SelectionValue, TransferFailure>;

/// What to ask the owner of a selection for, and how many bytes to accept at most.
struct TransferRequest {
    xcb_atom_t target = XCB_ATOM_NONE;
    qsizetype limit = 0;
};

/// An invisible window that the owner of a selection writes to. Destroyed with this object.
class RequestorWindow {
public:
    explicit RequestorWindow(Connection& connection);
    RequestorWindow(RequestorWindow&& other) noexcept;
    RequestorWindow& operator=(RequestorWindow&& other) noexcept;
    RequestorWindow(const RequestorWindow&) = delete;
    RequestorWindow& operator=(const RequestorWindow&) = delete;
    ~RequestorWindow();

    [[nodiscard]] xcb_window_t id() const { return id_; }

    /// No notice wakes us any more.
    void fallSilent();

private:
    Connection* connection_;
    xcb_window_t id_;
};

/// One conversion of a selection (ICCCM 2.4, large values by 2.7.2 INCR) as a state machine that is
/// given the events. Every transfer has a window of its own, so that what an owner still sends for
/// an older one is never mistaken for this one. The owner has 1.5 s for each step.
class SelectionTransfer {
public:
    SelectionTransfer(Connection& connection, xcb_atom_t selection, TransferRequest request,
                      xcb_timestamp_t time);

    /// The result, once it is there.
    [[nodiscard]] std::optional<TransferResult> handle(const xcb_generic_event_t& event);

    [[nodiscard]] TimePoint deadline() const { return deadline_; }

    /// The window, if the owner may still write to it: plain Xlib programs exit when they write
    /// to one that is gone. Nothing is left to do with this object then.
    [[nodiscard]] std::optional<RequestorWindow> abandon();

private:
    enum class State { asked, incremental, done };

    [[nodiscard]] std::optional<TransferResult> begin(const xcb_selection_notify_event_t& notice);
    [[nodiscard]] std::optional<TransferResult> goOn();
    [[nodiscard]] std::optional<TransferResult> end(TransferResult result);
    [[nodiscard]] tl::expected<SelectionValue, TransferFailure> readProperty();
    void deleteProperty();
    void waitForOwner();

    Connection& connection_;
    TransferRequest request_;
    xcb_atom_t property_;
    xcb_atom_t incr_;
    RequestorWindow window_;
    State state_ = State::asked;
    TimePoint deadline_;
    qint64 announced_ = 0; ///< By the owner, as a lower bound.
    SelectionValue value_;
};

} // namespace ravelo::x11
