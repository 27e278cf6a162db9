#pragma once

#include "platform/PackageUpdates.h"

#include <QDBusConnection>

#include <memory>
#include <utility>

namespace ravelo {

/// Updates by PackageKit (org.freedesktop.PackageKit on the system bus), which is started where it
/// is installed and does not run. Main thread.
class PackageKit final : public PackageUpdates {
public:
    PackageKit(QDBusConnection bus, QString package)
        : bus_(std::move(bus)), package_(std::move(package)) {}

    [[nodiscard]] Handle check(std::function<void(Checked)> done) override;
    [[nodiscard]] Handle install(const AvailableUpdate& update,
                                 std::function<void(std::optional<int>)> progress,
                                 std::function<void(Installed)> done) override;

private:
    QDBusConnection bus_;
    QString package_;
};

} // namespace ravelo
