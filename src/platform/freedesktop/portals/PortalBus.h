#pragma once

#include <QDBusConnection>
#include <QString>

namespace ravelo {

/// The session bus, for calls to portals: they look at the process that has connected and refuse
/// ours, which nobody may look at. So a child, `program` (the path of ravelo-bus), connects and
/// passes on what is sent. Blocks for a few milliseconds at the first call; the child ends with
/// this process. Not connected if it could not be started.
[[nodiscard]] QDBusConnection portalBus(const QString& program);

} // namespace ravelo
