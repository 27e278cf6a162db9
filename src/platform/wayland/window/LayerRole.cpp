#include "platform/wayland/window/LayerRole.h"

#include "platform/wayland/connection/QtConnection.h"

#include <utility>

namespace ravelo::wayland {

namespace {

constexpr uint32_t shellVersion = 4;

/// Bars reserve space only for those who ask to keep out of it.
constexpr int32_t overBars = -1;

constexpr uint32_t topEdge = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP;
constexpr uint32_t allEdges = topEdge | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                              ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT |
                              ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;

} // namespace

LayerShell bindLayerShell(const Globals& globals) {
    return LayerShell(
        globals.bind<zwlr_layer_shell_v1>(zwlr_layer_shell_v1_interface, shellVersion));
}

LayerRole::LayerRole(zwlr_layer_shell_v1& shell, wl_surface& surface, wl_output* output, QSize size,
                     Keyboard keyboard, Events events)
    : events_(std::move(events)),
      role_(zwlr_layer_shell_v1_get_layer_surface(&shell, &surface, output,
                                                  ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "ravelo")) {
    zwlr_layer_surface_v1_add_listener(role_.get(), &listener, this);
    zwlr_layer_surface_v1_set_anchor(role_.get(), size == wholeOutput ? allEdges : topEdge);
    zwlr_layer_surface_v1_set_exclusive_zone(role_.get(), overBars);
    resize(size);
    setKeyboard(keyboard);
}

void LayerRole::resize(QSize size) {
    zwlr_layer_surface_v1_set_size(role_.get(), static_cast<uint32_t>(size.width()),
                                   static_cast<uint32_t>(size.height()));
}

void LayerRole::setKeyboard(Keyboard keyboard) {
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        role_.get(), keyboard == Keyboard::exclusive
                         ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
                         : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
}

void LayerRole::configure(void* self, zwlr_layer_surface_v1* role, uint32_t serial, uint32_t width,
                          uint32_t height) {
    zwlr_layer_surface_v1_ack_configure(role, serial);
    static_cast<LayerRole*>(self)->events_.configured(
        {static_cast<int>(width), static_cast<int>(height)});
}

void LayerRole::close(void* self, zwlr_layer_surface_v1* /*role*/) {
    const auto closed = static_cast<LayerRole*>(self)->events_.closed; // It may destroy us.
    closed();
}

void setInputRegion(wl_surface& surface, const QRegion& region) {
    wl_surface_set_input_region(&surface, makeRegion(region).get());
}

Owned<wl_region> makeRegion(const QRegion& region) {
    Owned<wl_region> made(wl_compositor_create_region(qt::compositor()));
    for (const QRect& rect : region) {
        wl_region_add(made.get(), rect.x(), rect.y(), rect.width(), rect.height());
    }
    return made;
}

} // namespace ravelo::wayland
