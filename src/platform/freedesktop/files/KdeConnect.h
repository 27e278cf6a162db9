#pragma once

#include "platform/NearbyDevices.h"

#include <QDBusConnection>

#include <utility>

namespace ravelo {

/// The devices of KDE Connect (org.kde.kdeconnect on the session bus).
class KdeConnect final : public NearbyDevices {
public:
    explicit KdeConnect(QDBusConnection bus) : bus_(std::move(bus)) {}

    [[nodiscard]] Handle list(std::function<void(QList<NearbyDevice>)> done) override;
    [[nodiscard]] Handle send(const QString& deviceId, const QList<QByteArray>& addresses,
                              std::function<void(bool taken)> done) override;

private:
    [[nodiscard]] Handle listRunning(std::function<void(QList<NearbyDevice>)> done) const;

    QDBusConnection bus_;
};

} // namespace ravelo
