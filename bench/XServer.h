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

/// Owns memory returned by xcb.
template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// Ends the program: a measurement is not possible.
[[noreturn]] void giveUp(std::string_view why);

/// Device pixels, y downwards.
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

/// A connection of its own to the X server of DISPLAY. Ends the program if there is none.
class XServer {
public:
    XServer();

    ~XServer() { xcb_disconnect(connection_); }

    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    [[nodiscard]] xcb_connection_t* get() const { return connection_; }

    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }

    /// Flushes. Returns the next event, or null if none comes by `deadline`.
    [[nodiscard]] Owned<xcb_generic_event_t> nextEvent(Clock::time_point deadline);

    // Pointer and keys by XTEST. Sent at the next flush.
    void move(Place place);
    void click();
    /// One notch down.
    void turnWheel();
    /// A key without modifiers.
    void press(xcb_keysym_t key);

private:
    void fake(uint8_t type, uint8_t detail, Place place);

    xcb_connection_t* connection_;
    const xcb_screen_t* screen_;
};

/// Casts an event to the type it has.
template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    const void* memory = &event;
    return *static_cast<const Event*>(memory);
}

/// Without the flag of events sent by clients.
inline uint8_t typeOf(const xcb_generic_event_t& event) {
    return event.response_type & 0x7F;
}

} // namespace ravelo::bench
