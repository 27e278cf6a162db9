#pragma once

class QScreen;
class QWindow;
struct wl_compositor;
struct wl_display;
struct wl_output;
struct wl_surface;

/// Qt's own connection to the compositor, as far as its platform plugin reveals it. Main thread;
/// only what a running application object has, null otherwise.
namespace ravelo::wayland::qt {

[[nodiscard]] wl_display* display();
[[nodiscard]] wl_compositor* compositor();

/// Null for the stand-in that Qt has while there are no outputs.
[[nodiscard]] wl_output* output(QScreen* screen);

/// Null if the window has not been created.
[[nodiscard]] wl_surface* surface(QWindow& window);

} // namespace ravelo::wayland::qt
