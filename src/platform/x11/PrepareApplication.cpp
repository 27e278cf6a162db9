#include "platform/x11/PrepareApplication.h"

#include <QByteArray>
#include <QtGlobal>

namespace ravelo::x11 {

void prepareApplication() {
    // A session may ask for Wayland for all programs; this adapter cannot do with it.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (qEnvironmentVariableIsSet("DISPLAY") &&
        (platform.isEmpty() || platform.startsWith("wayland"))) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    // Else each frame that is asked for waits 5 ms before it is drawn.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
}

} // namespace ravelo::x11
