#pragma once

#include "bench/XServer.h"

#include <xcb/damage.h>
#include <xcb/shm.h>

#include <optional>
#include <vector>

namespace ravelo::bench {

/// The contents of a window of `panelSize`.
struct Frame {
    Clock::time_point seen; ///< When its pixels had been read, slightly after they were drawn.
    std::vector<uint32_t> pixels; ///< Rows of premultiplied ARGB, without gaps.
};

/// The part of `last` that `frame` shows at any visible opacity, 0 to 1: the details that have the
/// same pixels, up to a factor and an offset. 0 below an opacity of about 3 %, and if `last` has
/// too few details.
[[nodiscard]] double shown(const Frame& frame, const Frame& last);

/// Watches a window of another client: its size and changes of its contents.
class WindowWatch {
public:
    /// `server` must outlive it.
    WindowWatch(XServer& server, xcb_window_t window);
    ~WindowWatch();
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;

    /// Waits until the window has `size`, max. 20 s; returns when that was reported.
    Clock::time_point awaitSize(Size size);

    /// Waits for a change and reads the contents of the window, which must have `panelSize`. Empty
    /// if nothing is drawn before the timeout.
    [[nodiscard]] std::optional<Frame> nextFrame(Clock::duration timeout);

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
    bool drawn_ = false; ///< Changed since the last capture.
};

/// Opens the panel of `window` by pointer, which then moves on to `place` in it.
void openByPointer(XServer& server, WindowWatch& window, Place place);

} // namespace ravelo::bench
