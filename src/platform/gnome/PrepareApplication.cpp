#include "platform/gnome/PrepareApplication.h"

#include <QByteArray>
#include <QtGlobal>

#include <optional>
#include <utility>
#include <vector>

#include <malloc.h>

namespace ravelo::gnome {

Handle prepareApplication() {
    // The panel's pixels stay with the process, and threads that read a clip keep no heaps of their
    // own.
    constexpr int kept = 8 << 20; // Bytes.
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_ARENA_MAX, 1);
    std::vector<std::pair<const char*, std::optional<QByteArray>>> before;
    const std::pair<const char*, const char*> wanted[] = {
        {"QT_QPA_PLATFORM", "wayland"},
        {"QT_WAYLAND_DISABLE_WINDOWDECORATION", "1"}, // Our windows have title bars of their own.
        {"QT_QPA_UPDATE_IDLE_TIME", "0"},             // Else each frame waits 5 ms.
    };
    for (const auto& [name, value] : wanted) {
        before.emplace_back(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name))
                                                                  : std::nullopt);
        qputenv(name, value);
    }
    return Handle([before] {
        for (const auto& [name, value] : before) {
            value ? qputenv(name, *value) : qunsetenv(name);
        }
    });
}

} // namespace ravelo::gnome
