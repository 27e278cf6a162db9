#include "platform/system/CoreDumps.h"

#include <QByteArray>

#include <sys/prctl.h>

namespace ravelo {

void forbidCoreDumps() {
    if (qgetenv("RAVELO_CORE_DUMPS") != "1") {
        // Not by a resource limit: what is started from here would inherit it.
        prctl(PR_SET_DUMPABLE, 0);
    }
}

} // namespace ravelo
