#include "platform/x11/X11IconPreference.h"

#include "platform/x11/XSettings.h"

#include <utility>

namespace ravelo::x11 {

X11IconPreference::X11IconPreference(ManagerProperty& settings)
    : settings_(settings), changes_(settings.onChange([this] { look(); })) {
    look();
}

void X11IconPreference::look() {
    const QString theme = QString::fromUtf8(
        xsettingsString(settings_.bytes(), "Net/IconThemeName").value_or(QByteArray()));
    if (std::exchange(theme_, theme) != theme) {
        listeners_.notify();
    }
}

} // namespace ravelo::x11
