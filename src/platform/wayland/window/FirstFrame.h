#pragma once

#include "platform/wayland/connection/Globals.h"

#include <functional>
#include <utility>

namespace ravelo::wayland {

RAVELO_OWNED(wl_callback, wl_callback_destroy)

/// Reports, once, that the compositor has shown what a surface was drawn with. Main thread.
class FirstFrame {
public:
    /// Before the surface is drawn.
    FirstFrame(wl_surface& surface, std::function<void()> shown)
        : shown_(std::move(shown)), callback_(wl_surface_frame(&surface)) {
        wl_callback_add_listener(callback_.get(), &listener, this);
    }

private:
    static void done(void* self, wl_callback* /*callback*/, uint32_t /*time*/) {
        const auto shown = static_cast<FirstFrame*>(self)->shown_; // It may destroy us.
        shown();
    }

    static constexpr wl_callback_listener listener = {done};

    std::function<void()> shown_;
    Owned<wl_callback> callback_;
};

} // namespace ravelo::wayland
