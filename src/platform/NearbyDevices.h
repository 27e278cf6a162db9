#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace ravelo {

struct NearbyDevice {
    QString id;
    QString name; ///< As its user calls it; anything may be in it.

    friend bool operator==(const NearbyDevice&, const NearbyDevice&) = default;
};

/// The user's other devices, paired with this machine and within reach, as a service of the desktop
/// knows them. Main thread; nothing here waits. `done` is called once, later, within a few seconds
/// whatever the service does, and never where the handle was dropped.
class NearbyDevices {
public:
    virtual ~NearbyDevices() = default;

    /// In no order; none where the service does not run. Does not start it.
    [[nodiscard]] virtual Handle list(std::function<void(QList<NearbyDevice>)> done) = 0;

    /// Hands over `addresses` (RFC 8089, percent-encoded). Whether the service took them; no one
    /// tells whether they arrive. Dropping the handle takes nothing back.
    [[nodiscard]] virtual Handle send(const QString& deviceId, const QList<QByteArray>& addresses,
                                      std::function<void(bool taken)> done) = 0;
};

} // namespace ravelo
