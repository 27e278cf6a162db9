#include "platform/system/CoreDumps.h"

#include <QByteArray>

#include <sys/prctl.h>

namespace ravelo {

void forbidCoreDumps() {
    if (qgetenv("RAVELO_CORE_DUMPS") != "1") {
        // Not a resource limit, which the programs started from here would inherit.
        prctl(PR_SET_DUMPABLE, 0);
    }
}

} // namespace ravelo
