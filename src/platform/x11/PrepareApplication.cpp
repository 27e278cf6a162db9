#include "platform/x11/PrepareApplication.h"

#include <QByteArray>
#include <QtGlobal>

#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

#include <malloc.h>
#include <xcb/xcb.h>

namespace ravelo::x11 {

using namespace Qt::StringLiterals;

namespace {

/// Each opening draws 2 MB into memory that the last closing has given back. New pages cost ten
/// times as much as the drawing where page faults are slow (virtual machines), and shared memory
/// makes the X server pay for them once more. So the pixels are sent instead, out of memory that
/// the process keeps.
void keepPixels() {
    constexpr int kept = 8 << 20; // Bytes; the panel's pixels with room to spare.
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TRIM_THRESHOLD, kept);
    qputenv("QT_XCB_NO_MITSHM", "1");
}

/// Else each thread that ever read a picture or a clip keeps a heap of its own, 7 MB in all; and
/// none of them is so busy that it would wait.
void shareOneHeap() {
    mallopt(M_ARENA_MAX, 1);
}

/// Sets them again as they are now.
Handle keptVariables(std::initializer_list<const char*> names) {
    std::vector<std::pair<const char*, std::optional<QByteArray>>> before;
    for (const char* name : names) {
        before.emplace_back(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name))
                                                                  : std::nullopt);
    }
    return Handle([before] {
        for (const auto& [name, value] : before) {
            value ? qputenv(name, *value) : qunsetenv(name);
        }
    });
}

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
    // Else each frame that is asked for waits 5 ms before it is drawn. Read with the first frame.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    keepPixels();
    shareOneHeap();
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
