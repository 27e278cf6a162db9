#pragma once

#include "base/Handle.h"
#include "platform/PackageUpdates.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantList>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <optional>

class QDBusMessage;

namespace ravelo {

/// One org.freedesktop.PackageKit.Transaction (version 1.2).
/// Main thread.
class PackageKitTransaction final : public QObject {
    Q_OBJECT

public:
    /// The IDs of the reported packages: "name;version;architecture;data".
    using Done = tl::expected<QStringList, UpdateProblem>;

    /// Calls `method`, and `done` once at the end, later, unless this is destroyed before. Fails
    /// after `timeout`, if any, without a signal from PackageKit.
    PackageKitTransaction(QDBusConnection bus, QString method, QVariantList arguments,
                          std::function<void(Done)> done,
                          std::optional<std::chrono::milliseconds> timeout = {});

    /// The percentage, if known.
    std::function<void(std::optional<int>)> onProgress;

private Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): as the signals are called.
    void Package(uint info, const QString& id, const QString& summary);
    void ErrorCode(uint code, const QString& details);
    void Finished(uint exit, uint runtime);
    void PropertiesChanged(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated);
    // NOLINTEND(readability-identifier-naming)

private:
    void begin(const QDBusMessage& created);
    void listen();
    void call(const QString& method, const QVariantList& arguments,
              std::function<void(const QDBusMessage&)> done);
    void heard();
    void end(Done done);

    QDBusConnection bus_;
    QString method_;
    QVariantList arguments_;
    std::function<void(Done)> done_;
    QString path_;
    QStringList packages_;
    std::optional<UpdateProblem> problem_;
    QDBusServiceWatcher service_;
    QTimer silence_;
    Handle call_;
};

} // namespace ravelo
