#include "platform/freedesktop/portals/PortalBus.h"

#include <QUrl>

namespace ravelo {

using namespace Qt::StringLiterals;

QDBusConnection portalBus(const QString& program) {
    const QByteArray path = QUrl::toPercentEncoding(program, "/");
    return QDBusConnection::connectToBus(u"unixexec:path="_s + QString::fromLatin1(path),
                                         u"ravelo-portals"_s);
}

} // namespace ravelo
