#pragma once

#include <QDBusConnection>
#include <QString>

namespace ravelo {

/// The session bus, for calls to portals. Portals inspect the process that connected and refuse
/// ours, which is not dumpable. So a child, `program` (the path of ravelo-bus), connects and relays
/// all messages. Blocks for a few milliseconds at the first call; the child ends with
/// this process. Not connected if it could not be started.
[[nodiscard]] QDBusConnection portalBus(const QString& program);

} // namespace ravelo
