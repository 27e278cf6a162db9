#pragma once

#include "bench/XServer.h"

#include <xcb/damage.h>
#include <xcb/shm.h>

#include <optional>
#include <vector>

namespace ravelo::bench {

/// What a window of `panelSize` showed.
struct Frame {
    Clock::time_point seen;       ///< Its pixels had been read: a little after they were there.
    std::vector<uint32_t> pixels; ///< Rows of premultiplied ARGB, without gaps.
};

/// Whether `frame` shows everything that `last` shows, at whatever opacity: wherever `last` has a
/// detail, the pixels around it are those of `last` but for a factor and an offset. False below an
/// opacity of some 3 %, which shows nothing, and where `last` has too few details to tell.
[[nodiscard]] bool isComplete(const Frame& frame, const Frame& last);

/// Watches a window of another client: its size, and each change of what it shows.
class WindowWatch {
public:
    /// `server` must outlive it.
    WindowWatch(XServer& server, xcb_window_t window);
    ~WindowWatch();
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;

    /// Waits until the window has `size`, for 20 s at most; gives when it was told.
    Clock::time_point awaitSize(Size size);

    /// Waits for something to be drawn and reads all that the window, which must have `panelSize`,
    /// then shows. Nothing where nothing is drawn within `patience`.
    [[nodiscard]] std::optional<Frame> nextFrame(Clock::duration patience);

private:
    void handle(const xcb_generic_event_t& event);
    [[nodiscard]] Frame read();

    XServer& server_;
    xcb_window_t window_;
    uint8_t damageEvent_;
    xcb_damage_damage_t damage_;
    xcb_shm_seg_t segment_;
    const uint32_t* shared_; ///< Pixels of a window of `panelSize`.
    Size size_;
    bool drawn_ = false; ///< Drawn on since it was read last.
};

/// Opens the panel that `window` watches by the pointer, which then goes on to `place` in it.
void openByPointer(XServer& server, WindowWatch& window, Place place);

} // namespace ravelo::bench
