#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace ravelo {

/// The session's LockedHint (org.freedesktop.login1 on the system bus). Main thread.
class LoginSession final : public QObject, public SessionLock {
    Q_OBJECT

public:
    /// Starts looking for our session; does not wait.
    explicit LoginSession(QDBusConnection bus);

    [[nodiscard]] bool isLocked() const override { return locked_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

private Q_SLOTS:
    void propertiesChanged(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated);

private:
    void ask(const QString& path, const QString& interface, const QString& property,
             std::function<void(const QVariant&)> done);
    void follow(const QString& sessionPath);
    void setLocked(bool locked);

    QDBusConnection bus_;
    bool locked_ = false;
    Listeners<> listeners_;
};

} // namespace ravelo
