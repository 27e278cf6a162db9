#pragma once

#include <QDBusConnection>
#include <QString>

namespace ravelo {

/// The session bus, for calls to portals. Portals inspect the process that connected and refuse
/// ours, which is not dumpable. So a child, `program` (the path of ravelo-bus), connects and relays
/// all messages. Blocks for a few milliseconds at the first call; the child ends with
/// this process. Not connected if it could not be started.
[[nodiscard]] QDBusConnection portalBus(const QString& program);

/// Tells the portal which desktop file is ours, so that its dialogs and settings name us. To be
/// called before anything else, and again if it starts again. Nothing if it cannot know that.
void introduceToPortals(const QDBusConnection& bus);

} // namespace ravelo
