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

/// What the desktops' own screen savers and lockers say on the session bus: the signal
/// ActiveChanged of org.freedesktop.ScreenSaver and its kin. Only the owner of such a name is
/// believed, and only while it owns it. Main thread.
class ScreenSaverBus final : public QObject, public SessionLock {
    Q_OBJECT

public:
    /// Asks those that run and listens to all; waits for none.
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
    QHash<QString, QString> owners_; ///< Of the savers' names, as far as they are known.
    QSet<QString> active_;           ///< The interfaces whose saver shows; some programs speak two.
    Listeners<> listeners_;
};

} // namespace ravelo
