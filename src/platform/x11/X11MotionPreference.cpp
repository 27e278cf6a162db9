#include "platform/x11/X11MotionPreference.h"

#include "platform/x11/XSettings.h"

#include <utility>

namespace ravelo::x11 {

X11MotionPreference::X11MotionPreference(ManagerProperty& settings)
    : settings_(settings), changes_(settings.onChange([this] { look(); })) {
    look();
}

void X11MotionPreference::look() {
    const bool reduced = xsettingsInteger(settings_.bytes(), "Gtk/EnableAnimations") == 0;
    if (std::exchange(reduced_, reduced) != reduced) {
        listeners_.notify();
    }
}

} // namespace ravelo::x11
