#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"

#include <QDBusConnection>
#include <QObject>
#include <QSet>

namespace ravelo {

/// What the desktops' own screen savers and lockers say on the session bus: the signal
/// ActiveChanged of org.freedesktop.ScreenSaver and its kin. Main thread.
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
    void setActive(const QString& interface, bool active);

    QDBusConnection bus_;
    QSet<QString> active_; ///< The interfaces whose saver shows; some programs speak two.
    Listeners<> listeners_;
};

} // namespace ravelo
