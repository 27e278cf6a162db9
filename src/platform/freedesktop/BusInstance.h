#pragma once

#include "platform/freedesktop/SingleInstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QVariantList>
#include <QVariantMap>

namespace ravelo {

/// The session bus, on a connection of ours.
[[nodiscard]] QDBusConnection sessionBus();

/// The one that owns our name on the session bus.
class BusInstance final : public QObject, public SingleInstance {
    Q_OBJECT

public:
    [[nodiscard]] static std::unique_ptr<SingleInstance> claim(QDBusConnection& bus);
    [[nodiscard]] static bool send(QDBusConnection& bus, const QString& action);
};

/// org.freedesktop.Application as the bus sees it.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(BusInstance& instance);

public Q_SLOTS:
    // The names are the interface's own. NOLINTBEGIN(readability-identifier-naming)
    void Activate(const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameter,
                        const QVariantMap& platformData);
    // NOLINTEND(readability-identifier-naming)

private:
    void act(const QString& action);

    BusInstance& instance_;
};

} // namespace ravelo
