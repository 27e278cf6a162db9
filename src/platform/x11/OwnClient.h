#pragma once

#include <xcb/xcb.h>

namespace ravelo::x11 {

/// Tells windows of this program's Qt from those of others. Every client makes its ids within a
/// range that the server gave it at the start.
class OwnClient {
public:
    /// Main thread, after the application object.
    [[nodiscard]] static OwnClient ofQt();

    [[nodiscard]] bool owns(xcb_window_t window) const {
        return window != XCB_NONE && (window & ~mask_) == base_;
    }

    /// The same for all windows of one client.
    [[nodiscard]] uint32_t clientOf(xcb_window_t window) const { return window & ~mask_; }

private:
    OwnClient(uint32_t base, uint32_t mask) : base_(base), mask_(mask) {}

    uint32_t base_;
    uint32_t mask_;
};

} // namespace ravelo::x11
