#pragma once

#include "base/Handle.h"
#include "base/Listeners.h"
#include "platform/x11/Connection.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>

namespace ravelo::x11 {

/// Hands the events of a connection to the main thread's event loop. Answers may be waited for on
/// the same connection: what that reads aside is handed out before the loop sleeps. Errors of
/// requests that nobody waits for are dropped: a window of another program may go at any moment.
class Events {
public:
    /// The connection must outlive it and belong to the main thread.
    explicit Events(Connection& connection);

    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;
    ~Events() = default;

    /// Called for every event, in order.
    [[nodiscard]] Handle onEvent(std::function<void(const xcb_generic_event_t&)> callback);

private:
    void drain(xcb_generic_event_t* (*next)(xcb_connection_t*));

    Connection& connection_;
    QSocketNotifier notifier_;
    QObject context_;
    Listeners<const xcb_generic_event_t&> listeners_;
};

/// The event as what its type says it is, or null where it is of another type.
template <typename T>
[[nodiscard]] const T* eventAs(const xcb_generic_event_t& event, uint8_t type) {
    constexpr uint8_t sentByClient = 0x80;
    const void* memory = &event;
    return (event.response_type & ~sentByClient) == type ? static_cast<const T*>(memory) : nullptr;
}

} // namespace ravelo::x11
