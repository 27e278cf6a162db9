#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace ravelo::bench {

/// CLOCK_MONOTONIC.
using Clock = std::chrono::steady_clock;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

/// What xcb hands over to be freed.
template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// Ends the program: nothing is worth measuring any more.
[[noreturn]] void giveUp(std::string_view why);

/// Device pixels, y grows downwards.
struct Size {
    uint16_t width = 0;
    uint16_t height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

struct Place {
    int16_t x = 0;
    int16_t y = 0;
};

constexpr Size handleSize = {200, 12};
constexpr Size panelSize = {927, 560};

/// The X server of DISPLAY over a connection of its own. Ends the program where there is none.
class XServer {
public:
    XServer();

    ~XServer() { xcb_disconnect(connection_); }

    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    [[nodiscard]] xcb_connection_t* get() const { return connection_; }

    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }

    /// Sends what is waiting to be sent. The next event, or nothing if none has come by `deadline`.
    [[nodiscard]] Owned<xcb_generic_event_t> nextEvent(Clock::time_point deadline);

    // Pointer and keys as a hand would move them (XTEST). Not sent before the next flush.
    void move(Place place);
    void click();
    /// One notch towards the end of what is under the pointer.
    void turnWheel();
    /// A key that needs no other one held.
    void press(xcb_keysym_t key);

private:
    void fake(uint8_t type, uint8_t detail, Place place);

    xcb_connection_t* connection_;
    const xcb_screen_t* screen_;
};

/// An event as what its type says it is.
template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    const void* memory = &event;
    return *static_cast<const Event*>(memory);
}

/// Without the mark of events sent by clients.
inline uint8_t typeOf(const xcb_generic_event_t& event) {
    return event.response_type & 0x7F;
}

} // namespace ravelo::bench
