#pragma once

#include "base/Handle.h"
#include "base/Listeners.h"
#include "platform/x11/connection/Connection.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>

namespace ravelo::x11 {

/// Delivers the events of a connection in the main thread's event loop. Replies may be awaited on
/// the same connection: events that this reads are delivered before the loop sleeps. Errors of
/// requests that nobody waits for are dropped: another program's window may go at any time.
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

/// The event, cast by its type, or null if it has another type.
template <typename T>
[[nodiscard]] const T* eventAs(const xcb_generic_event_t& event, uint8_t type) {
    constexpr uint8_t sentByClient = 0x80;
    const void* memory = &event;
    return (event.response_type & ~sentByClient) == type ? static_cast<const T*>(memory) : nullptr;
}

} // namespace ravelo::x11
