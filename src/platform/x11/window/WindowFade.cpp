#include "platform/x11/window/WindowFade.h"

#include "platform/x11/connection/Connection.h"

#include <limits>

namespace ravelo::x11 {

namespace {

// From the second frame of 60 ms: the first would be invisible.
constexpr double begin = 16.0 / 60;
constexpr int duration = 44; ///< Milliseconds.

} // namespace

WindowFade::WindowFade(xcb_connection_t* connection, Connection& atoms)
    : connection_(connection), property_(atoms.atom("_NET_WM_WINDOW_OPACITY")) {
    animation_.setStartValue(begin);
    animation_.setEndValue(1.0);
    animation_.setDuration(duration);
    QObject::connect(&animation_, &QVariantAnimation::valueChanged, &animation_,
                     [this](const QVariant& value) { show(value.toDouble()); });
}

void WindowFade::start(xcb_window_t window) {
    window_ = window;
    animation_.start();
}

void WindowFade::stop() {
    animation_.stop();
    show(1);
}

void WindowFade::show(double opacity) {
    if (window_ == XCB_WINDOW_NONE) {
        return;
    }
    if (opacity >= 1) {
        xcb_delete_property(connection_, window_, property_);
        window_ = XCB_WINDOW_NONE;
    } else {
        const auto value = static_cast<uint32_t>(opacity * std::numeric_limits<uint32_t>::max());
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, property_,
                            XCB_ATOM_CARDINAL, 32, 1, &value);
    }
    xcb_flush(connection_);
}

} // namespace ravelo::x11
