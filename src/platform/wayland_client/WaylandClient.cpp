#include "platform/wayland_client/WaylandClient.h"

#include "base/ProcessSetup.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QThread>

#include <cstdlib>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler handlerBefore = nullptr;
bool isQuiet = false; ///< What Qt complains about now is on purpose.

/// When the compositor is gone, Qt says so and calls _exit(), which saves nothing. So the program
/// ends here, by exit().
void endInOrder(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    // Since Qt 6.6, requesting a frame while the scale changes logs this; Qt then corrects the
    // scale.
    if (isQuiet || text.startsWith("The cached device pixel ratio value was stale"_L1)) {
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

Handle prepareWaylandClient() {
    // The panel is drawn in software. Loading a driver takes half a second and 50 MB.
    constexpr auto openGL = "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION";
    const auto before = std::make_shared<Handle>(
        keptVariables({"QT_QPA_PLATFORM", "QT_WAYLAND_RECONNECT", openGL}));
    qputenv("QT_QPA_PLATFORM", "wayland");
    qunsetenv("QT_WAYLAND_RECONNECT"); // Nothing of ours would be there after that.
    qputenv(openGL, "none");
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

} // namespace ravelo
