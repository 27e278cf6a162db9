#include "platform/system/MachineId.h"

#include <QFile>
#include <QSysInfo>

namespace ravelo {

QByteArray machineId() {
    // Qt reads the one of the message bus, which some systems (Debian 13 without systemd's
    // temporary files) no longer have. It stays the first choice: it is in the locks of earlier
    // versions.
    QByteArray id = QSysInfo::machineUniqueId();
    if (id.isEmpty()) {
        QFile file(QStringLiteral("/etc/machine-id"));
        if (file.open(QIODevice::ReadOnly)) {
            id = file.readLine().trimmed();
        }
    }
    return id;
}

} // namespace ravelo
