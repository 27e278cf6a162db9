#include "base/ProcessSetup.h"

#include <QByteArray>
#include <QtGlobal>

#include <optional>
#include <utility>
#include <vector>

#include <malloc.h>

namespace ravelo {

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

void drawAtOnce() {
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0"); // Read with the first frame.
}

void keepFreedMemory() {
    // Each opening draws 2 MB, which the last closing has freed. New pages cost ten times as much
    // as the drawing if page faults are slow, as in virtual machines.
    constexpr int kept = 8 << 20; // Bytes; the panel's pixels with room to spare.
    mallopt(M_MMAP_THRESHOLD, kept);
    mallopt(M_TRIM_THRESHOLD, kept);
    // Otherwise each thread that ever read a picture or a clip keeps a heap of its own, 7 MB in
    // all; and none of them is so busy that it would wait.
    mallopt(M_ARENA_MAX, 1);
}

} // namespace ravelo
