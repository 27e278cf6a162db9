#include "platform/wayland/PrepareApplication.h"

#include "platform/wayland/clipboard/DataControl.h"
#include "platform/wayland/window/LayerRole.h"
#include "platform/wayland_client/WaylandClient.h"

namespace ravelo::wayland {

using namespace Qt::StringLiterals;

Result<void> findCompositor() {
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (name.isEmpty() && !qEnvironmentVariableIsSet("WAYLAND_SOCKET")) {
        return failure(u"WAYLAND_DISPLAY is not set"_s);
    }
    if (name.isEmpty()) {
        return failure(u"WAYLAND_SOCKET allows for one connection only"_s);
    }
    const Connection connection(wl_display_connect(nullptr));
    if (!connection) {
        return failure(u"cannot connect to the Wayland compositor "_s + name);
    }
    const Globals globals(connection.get());
    if (!globals.has(zwlr_layer_shell_v1_interface.name)) {
        return failure(u"the Wayland compositor has no layer shell"_s);
    }
    if (!DataControl::isOffered(globals)) {
        return failure(u"the Wayland compositor has no data control"_s);
    }
    return {};
}

Handle prepareApplication() {
    // Windows with that hint get no role by Qt: the panel has its own. Qt looks at every frame.
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    return prepareWaylandClient();
}

} // namespace ravelo::wayland
