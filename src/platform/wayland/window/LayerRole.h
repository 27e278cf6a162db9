#pragma once

#include "platform/wayland/connection/Globals.h"

#include <QRegion>
#include <QSize>

#include <functional>

#include <wlr-layer-shell-unstable-v1-client.h>

namespace ravelo::wayland {

RAVELO_OWNED(zwlr_layer_shell_v1, zwlr_layer_shell_v1_destroy)
RAVELO_OWNED(zwlr_layer_surface_v1, zwlr_layer_surface_v1_destroy)

/// The layer shell of one connection.
using LayerShell = Owned<zwlr_layer_shell_v1>;

/// Null if the compositor has none.
[[nodiscard]] LayerShell bindLayerShell(const Globals& globals);

enum class Keyboard { none, exclusive };

/// As a size: from edge to edge.
inline constexpr QSize wholeOutput(0, 0);

/// Makes a wl_surface part of the desktop: in the overlay layer, at the top edge of an output, over
/// the space of bars. Main thread.
class LayerRole {
public:
    struct Events {
        /// The compositor's answer to the first commit and to `resize`: draw in this size.
        std::function<void(QSize)> configured;

        /// Not shown any more, for good.
        std::function<void()> closed;
    };

    /// `size` may be `wholeOutput`. `surface` must have neither a role nor a buffer and
    /// outlive this; `output` may be null: the compositor chooses.
    LayerRole(zwlr_layer_shell_v1& shell, wl_surface& surface, wl_output* output, QSize size,
              Keyboard keyboard, Events events);

    /// These take effect with the next commit.
    void resize(QSize size);
    void setKeyboard(Keyboard keyboard);

private:
    static void configure(void* self, zwlr_layer_surface_v1* role, uint32_t serial, uint32_t width,
                          uint32_t height);
    static void close(void* self, zwlr_layer_surface_v1* role);

    static constexpr zwlr_layer_surface_v1_listener listener = {configure, close};

    Events events_;
    Owned<zwlr_layer_surface_v1> role_;
};

/// Restricts the input of `surface` with its next commit.
void setInputRegion(wl_surface& surface, const QRegion& region);

/// Of Qt's compositor, which is never null on Wayland.
[[nodiscard]] Owned<wl_region> makeRegion(const QRegion& region);

} // namespace ravelo::wayland
