#include "platform/freedesktop/XdgEnvironment.h"

#include <QByteArray>
#include <QByteArrayList>

namespace ravelo {

void ignoreRelativeXdgPaths() {
    for (const char* variable :
         {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR",
          "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"}) {
        // These are single folders, whose names may contain colons.
        const bool isList = QByteArrayView(variable).endsWith("S");
        const QByteArray value = qgetenv(variable);
        QByteArrayList paths = isList ? value.split(':') : QByteArrayList{value};
        const qsizetype relative =
            paths.removeIf([](const QByteArray& path) { return !path.startsWith('/'); });
        if (paths.isEmpty()) {
            qunsetenv(variable);
        } else if (relative > 0) {
            qputenv(variable, paths.join(':'));
        }
    }
}

} // namespace ravelo
