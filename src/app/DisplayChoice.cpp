#include "app/DisplayChoice.h"

#include "platform/gnome/ShellExtension.h"
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
    if (wanted == "gnome"_L1) {
        return DisplayChoice{Display::gnome, u"set by RAVELO_PLATFORM"_s};
    }
    if (!wanted.isEmpty()) {
        return failure(u"RAVELO_PLATFORM must be x11, wayland or gnome, not \"%1\""_s.arg(wanted));
    }
    const QString qtPlatform = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!qtPlatform.isEmpty() && !qtPlatform.startsWith("wayland"_L1)) {
        return onX11(u"set by QT_QPA_PLATFORM"_s);
    }
    auto choice = onWayland(u"with layer shell and data control"_s);
    if (choice) {
        return choice;
    }
    if (gnome::isExtensionRunning()) {
        return DisplayChoice{Display::gnome, u"its extension for Ravelo is running"_s};
    }
    const bool isThere =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_SOCKET");
    return onX11(isThere ? choice.error().message : QString());
}

QString describe(const DisplayChoice& choice) {
    const auto name = [&] {
        switch (choice.display) {
        case Display::x11:
            return u"X11"_s;
        case Display::wayland:
            return u"Wayland"_s;
        case Display::gnome:
            return u"GNOME"_s;
        }
        return QString();
    };
    return choice.reason.isEmpty() ? name() : u"%1 (%2)"_s.arg(name(), choice.reason);
}

} // namespace ravelo
