#pragma once

#include "base/Handle.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace ravelo {

struct NearbyDevice {
    QString id;
    QString name; ///< Chosen by its user; untrusted text.

    friend bool operator==(const NearbyDevice&, const NearbyDevice&) = default;
};

/// The user's other devices that are paired with this machine and reachable, as a service of the
/// desktop knows them. Main thread; never blocks. `done` is called once, within a few seconds
/// whatever the service does, and never if the handle was dropped.
class NearbyDevices {
public:
    virtual ~NearbyDevices() = default;

    /// In no order; empty if the service does not run. Does not start it.
    [[nodiscard]] virtual Handle list(std::function<void(QList<NearbyDevice>)> done) = 0;

    /// Hands over `addresses` (RFC 8089, percent-encoded). `taken` says whether the service
    /// accepted them; whether they arrive is unknown. Dropping the handle cancels nothing.
    [[nodiscard]] virtual Handle send(const QString& deviceId, const QList<QByteArray>& addresses,
                                      std::function<void(bool taken)> done) = 0;
};

} // namespace ravelo
