#include "platform/wayland/connection/QtConnection.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

namespace ravelo::wayland::qt {

namespace {

QPlatformNativeInterface& qtPlugin() {
    return *QGuiApplication::platformNativeInterface();
}

} // namespace

wl_display* display() {
    return static_cast<wl_display*>(qtPlugin().nativeResourceForIntegration("wl_display"));
}

wl_compositor* compositor() {
    return static_cast<wl_compositor*>(qtPlugin().nativeResourceForIntegration("compositor"));
}

wl_output* output(QScreen* screen) {
    return screen == nullptr
               ? nullptr
               : static_cast<wl_output*>(qtPlugin().nativeResourceForScreen("output", screen));
}

wl_surface* surface(QWindow& window) {
    return window.handle() == nullptr
               ? nullptr
               : static_cast<wl_surface*>(qtPlugin().nativeResourceForWindow("surface", &window));
}

} // namespace ravelo::wayland::qt
