#pragma once

#include "platform/x11/connection/Connection.h"

#include <xcb/sync.h>

namespace ravelo::x11 {

/// Tells when the pointer moves after it has stood still, by an alarm on the server's own idle
/// counter of the pointer (X Synchronization Extension 3.1, "DEVICEIDLETIME"). Unlike raw motion it
/// also sees a pointer that another client has moved. Does nothing on a server without the counter.
class IdleAlarm {
public:
    explicit IdleAlarm(Connection& connection);

    enum class Switch { off, on };

    void set(Switch state);

    [[nodiscard]] bool isNotice(const xcb_generic_event_t& event) const;

private:
    Connection& connection_;
    uint8_t firstEvent_ = 0;
    xcb_sync_alarm_t alarm_ = XCB_NONE;
};

} // namespace ravelo::x11
