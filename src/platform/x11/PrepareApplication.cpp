#include "platform/x11/PrepareApplication.h"

#include "base/ProcessSetup.h"

#include <QByteArray>
#include <QtGlobal>

#include <xcb/xcb.h>

namespace ravelo::x11 {

using namespace Qt::StringLiterals;

namespace {

bool isServerReachable() {
    xcb_connection_t* const xcb = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(xcb) == 0;
    xcb_disconnect(xcb);
    return reached;
}

} // namespace

Handle prepareApplication() {
    Handle before = keptVariables({"QT_QPA_PLATFORM", "QT_XCB_NO_MITSHM"});
    // A session may ask for Wayland for all programs; this adapter cannot do with it.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (qEnvironmentVariableIsSet("DISPLAY") &&
        (platform.isEmpty() || platform.startsWith("wayland"))) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    qputenv("QT_XCB_NO_MITSHM", "1"); // Shared memory makes the X server pay for new pages, too.
    drawAtOnce();
    keepFreedMemory();
    return before;
}

Result<void> findDisplay() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland")) {
        return {};
    }
    const QString display = qEnvironmentVariable("DISPLAY");
    if (display.isEmpty()) {
        return failure(u"no display: DISPLAY is not set"_s);
    }
    return isServerReachable() ? Result<void>()
                               : failure(u"no display: cannot connect to "_s + display);
}

} // namespace ravelo::x11
