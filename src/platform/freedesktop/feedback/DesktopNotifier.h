#pragma once

#include "platform/Notifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <map>

namespace ravelo {

/// Desktop Notifications (org.freedesktop.Notifications on the session bus). Listens from the first
/// notification on.
class DesktopNotifier final : public QObject, public Notifier {
    Q_OBJECT

public:
    explicit DesktopNotifier(QDBusConnection bus);

    void show(const Notification& notification) override;
    [[nodiscard]] Handle look(std::function<void(bool available)> done) override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString& action, const QDBusMessage& signal);
    void notificationClosed(uint id, uint reason, const QDBusMessage& signal);

private:
    struct Shown {
        uint id = 0;
        QString owner; ///< Of the service's name; only this one reports what happens to it.
        QList<Notification::Action> actions;
        Handle call;
    };

    using Entry = std::map<QString, Shown>::iterator;

    void listen();
    void address(const Notification& notification, const QStringList& capabilities);
    void send(const Notification& notification, const QStringList& capabilities);
    [[nodiscard]] Entry find(uint id, const QDBusMessage& signal);

    QDBusConnection bus_;
    bool listening_ = false;
    std::map<QString, Shown> shown_; ///< By key.
};

} // namespace ravelo
