#pragma once

#include "platform/wayland/window/LayerRole.h"

#include <viewporter-client.h>

#include <memory>

namespace ravelo::wayland {

RAVELO_OWNED(wp_viewporter, wp_viewporter_destroy)
RAVELO_OWNED(wp_viewport, wp_viewport_destroy)

/// What invisible surfaces are made of: one transparent pixel, stretched by the compositor.
class InvisiblePixel {
public:
    /// Null if the compositor cannot do it.
    [[nodiscard]] static std::unique_ptr<InvisiblePixel> create(const Globals& globals);

    [[nodiscard]] wl_buffer* buffer() const { return buffer_.get(); }

    [[nodiscard]] wp_viewporter* viewporter() const { return viewporter_.get(); }

private:
    Owned<wp_viewporter> viewporter_;
    Owned<wl_buffer> buffer_;
};

/// A part of an output's top edge, or all of the output, that notices the pointer (InputSeat) and
/// shows nothing. Main thread.
class InvisibleSurface {
public:
    /// `size` may be `wholeOutput`. `pixel` and `shell` must outlive this.
    InvisibleSurface(const InvisiblePixel& pixel, zwlr_layer_shell_v1& shell, wl_output* output,
                     QSize size);

    /// Lets input through in `hole`, whose coordinates are those of a box of the size `box` that
    /// hangs from the middle of the top edge.
    void setHole(const QRegion& hole, QSize box);

    [[nodiscard]] wl_surface* surface() const { return surface_.get(); }

private:
    void configure(QSize size);
    void draw();

    const InvisiblePixel& pixel_;
    Owned<wl_surface> surface_;
    Owned<wp_viewport> viewport_;
    std::unique_ptr<LayerRole> role_; // Before the surface in destruction.
    QSize size_;                      ///< Empty until the compositor has answered.
    QRegion hole_;
    QSize box_;
};

} // namespace ravelo::wayland
