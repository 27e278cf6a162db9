#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

namespace ravelo {

/// The state of screen savers and lockers on the session bus: the signal ActiveChanged of
/// org.freedesktop.ScreenSaver and similar names. Only the owner of such a name is believed, and
/// only while it owns it. Main thread.
class ScreenSaverBus final : public QObject, public SessionLock {
    Q_OBJECT

public:
    /// Asks those that run and listens to all; does not wait.
    explicit ScreenSaverBus(QDBusConnection bus);

    [[nodiscard]] bool isLocked() const override { return !active_.isEmpty(); }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private Q_SLOTS:
    void activeChanged(bool active, const QDBusMessage& signal);

private:
    void ask(const QDBusMessage& call, std::function<void(const QVariant&)> done);
    void setOwner(const QString& name, const QString& owner);
    void setActive(const QString& interface, bool active);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    QHash<QString, QString> owners_; ///< The known owners of the names.
    QSet<QString> active_;           ///< Interfaces with an active saver; some programs have two.
    Listeners<> listeners_;
};

} // namespace ravelo
