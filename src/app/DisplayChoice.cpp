#include "app/DisplayChoice.h"

#include "platform/wayland/PrepareApplication.h"
#include "platform/x11/PrepareApplication.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

Result<DisplayChoice> onWayland(const QString& reason) {
    return wayland::findCompositor().map([&] { return DisplayChoice{Display::wayland, reason}; });
}

Result<DisplayChoice> onX11(const QString& reason) {
    return x11::findDisplay().map([&] { return DisplayChoice{Display::x11, reason}; });
}

} // namespace

Result<DisplayChoice> chooseDisplay() {
    const QString wanted = qEnvironmentVariable("RAVELO_PLATFORM");
    if (wanted == "wayland"_L1) {
        return onWayland(u"set by RAVELO_PLATFORM"_s);
    }
    if (wanted == "x11"_L1) {
        return onX11(u"set by RAVELO_PLATFORM"_s);
    }
    if (!wanted.isEmpty()) {
        return failure(u"RAVELO_PLATFORM must be x11 or wayland, not \"%1\""_s.arg(wanted));
    }
    const QString qtPlatform = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!qtPlatform.isEmpty() && !qtPlatform.startsWith("wayland"_L1)) {
        return onX11(u"set by QT_QPA_PLATFORM"_s);
    }
    auto choice = onWayland(u"with layer shell and data control"_s);
    return choice ? choice : onX11(choice.error().message);
}

QString describe(const DisplayChoice& choice) {
    const QString name = choice.display == Display::wayland ? u"Wayland"_s : u"X11"_s;
    return u"%1 (%2)"_s.arg(name, choice.reason);
}

} // namespace ravelo
