#pragma once

#include "platform/PackageUpdates.h"

#include <QDBusConnection>

#include <chrono>
#include <utility>

namespace ravelo {

/// Updates by PackageKit (org.freedesktop.PackageKit on the system bus), which is started where it
/// is installed and does not run. Main thread.
class PackageKit final : public PackageUpdates {
public:
    /// Looking for updates is given up after `patience` without a word from the service. Installing
    /// is not: a package may be set up silently for longer.
    PackageKit(QDBusConnection bus, QString package,
               std::chrono::milliseconds patience = std::chrono::seconds(30))
        : bus_(std::move(bus)), package_(std::move(package)), patience_(patience) {}

    [[nodiscard]] Handle check(std::function<void(Checked)> done) override;
    [[nodiscard]] Handle install(const AvailableUpdate& update,
                                 std::function<void(std::optional<int>)> progress,
                                 std::function<void(Installed)> done) override;

private:
    QDBusConnection bus_;
    QString package_;
    std::chrono::milliseconds patience_;
};

} // namespace ravelo
