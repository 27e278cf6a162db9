#include "platform/wayland/PrepareApplication.h"

#include "base/ProcessSetup.h"
#include "platform/wayland/clipboard/DataControl.h"
#include "platform/wayland/window/LayerRole.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QThread>

#include <cstdlib>
#include <memory>
#include <utility>

namespace ravelo::wayland {

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler handlerBefore = nullptr;
bool isQuiet = false; ///< What Qt complains about now is on purpose.

/// When the compositor is gone, Qt says so and calls _exit(), which saves nothing. So the program
/// ends here, by exit().
void endInOrder(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (isQuiet) {
        return;
    }
    handlerBefore(type, context, text);
    if (!text.startsWith("The Wayland connection"_L1)) {
        return;
    }
    static bool ending = false;
    const auto end = [] {
        if (!std::exchange(ending, true)) {
            std::exit(EXIT_FAILURE);
        }
    };
    if (QThread::currentThread() == qApp->thread()) {
        end();
    } else { // Qt also reads on threads of its own.
        QMetaObject::invokeMethod(qApp, end, Qt::BlockingQueuedConnection);
    }
}

/// Has Qt look for OpenGL, as it would with the first window.
void settleOpenGL() {
    isQuiet = true;
    (void)QOpenGLContext::supportsThreadedOpenGL();
    isQuiet = false;
}

} // namespace

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
    // The panel is drawn in software. Loading a driver takes half a second and 50 MB.
    constexpr auto openGL = "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION";
    const auto before = std::make_shared<Handle>(
        keptVariables({"QT_QPA_PLATFORM", "QT_WAYLAND_RECONNECT", openGL}));
    qputenv("QT_QPA_PLATFORM", "wayland");
    qunsetenv("QT_WAYLAND_RECONNECT"); // Nothing of ours would be there after that.
    qputenv(openGL, "none");
    // Windows with that hint get no role by Qt: the panel has its own. Qt looks at every frame.
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    drawAtOnce();
    keepFreedMemory();
    handlerBefore = qInstallMessageHandler(endInOrder);
    return Handle([before] {
        if (qApp != nullptr) {
            settleOpenGL();
        }
        before->reset();
    });
}

} // namespace ravelo::wayland
