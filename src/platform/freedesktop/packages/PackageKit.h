#pragma once

#include "platform/PackageUpdates.h"

#include <QDBusConnection>

#include <chrono>
#include <utility>

namespace ravelo {

/// Updates by PackageKit (org.freedesktop.PackageKit on the system bus), started if installed. Main
/// thread.
class PackageKit final : public PackageUpdates {
public:
    /// Checking fails after `timeout` without a signal from the service. Installing does not,
    /// because configuring a package may take longer than that.
    PackageKit(QDBusConnection bus, QString package,
               std::chrono::milliseconds timeout = std::chrono::seconds(30))
        : bus_(std::move(bus)), package_(std::move(package)), timeout_(timeout) {}

    [[nodiscard]] Handle check(std::function<void(Checked)> done) override;
    [[nodiscard]] Handle install(const AvailableUpdate& update,
                                 std::function<void(std::optional<int>)> progress,
                                 std::function<void(Installed)> done) override;

private:
    QDBusConnection bus_;
    QString package_;
    std::chrono::milliseconds timeout_;
};

} // namespace ravelo
