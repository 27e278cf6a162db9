#include "platform/freedesktop/feedback/DesktopNotifier.h"

#include "platform/freedesktop/BusCall.h"

#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <memory>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.Notifications"_s;
const auto path = u"/org/freedesktop/Notifications"_s;
const auto bus = u"org.freedesktop.DBus"_s;
constexpr std::chrono::seconds timeOut{5};

QDBusMessage callTo(const QString& method) {
    return QDBusMessage::createMethodCall(service, path, service, method);
}

} // namespace

DesktopNotifier::DesktopNotifier(QDBusConnection connection) : bus_(std::move(connection)) {}

void DesktopNotifier::listen() {
    if (std::exchange(listening_, true)) {
        return;
    }
    // From any sender, because matching one blocks.
    bus_.connect({}, path, service, u"ActionInvoked"_s, this,
                 SLOT(actionInvoked(uint, QString, QDBusMessage)));
    bus_.connect({}, path, service, u"NotificationClosed"_s, this,
                 SLOT(notificationClosed(uint, uint, QDBusMessage)));
}

void DesktopNotifier::show(const Notification& notification) {
    listen();
    // Another service may have taken the place of the one before.
    shown_[notification.key].call = callBus(
        bus_, callTo(u"GetCapabilities"_s), timeOut,
        [this, notification](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage) {
                address(notification, reply.arguments().value(0).toStringList());
            } else {
                shown_.erase(notification.key);
            }
        },
        Activation::allowed);
}

void DesktopNotifier::address(const Notification& notification, const QStringList& capabilities) {
    shown_[notification.key].call =
        findOwner(bus_, service, timeOut, [this, notification, capabilities](const QString& owner) {
            if (owner.isEmpty()) {
                shown_.erase(notification.key);
                return;
            }
            Shown& shown = shown_[notification.key];
            if (std::exchange(shown.owner, owner) != owner) {
                shown.id = 0; // Another service does not know it.
            }
            send(notification, capabilities);
        });
}

void DesktopNotifier::send(const Notification& notification, const QStringList& capabilities) {
    Shown& shown = shown_[notification.key];
    QStringList actions;
    if (capabilities.contains(u"actions"_s)) {
        for (qsizetype i = 0; i < notification.actions.size(); ++i) {
            actions << QString::number(i) << notification.actions[i].label;
        }
    }
    const QString text = capabilities.contains(u"body-markup"_s) ? notification.text.toHtmlEscaped()
                                                                 : notification.text;
    constexpr int untilTheServiceDecides = -1;
    auto call = QDBusMessage::createMethodCall(shown.owner, path, service, u"Notify"_s);
    call << u"Ravelo"_s << shown.id << u"org.ravelo.Ravelo"_s << notification.title << text
         << actions << QVariantMap{{u"desktop-entry"_s, u"org.ravelo.Ravelo"_s}}
         << untilTheServiceDecides;
    shown.actions = notification.actions;
    shown.call = callBus(bus_, call, timeOut,
                         [this, &shown, key = notification.key](const QDBusMessage& reply) {
                             if (reply.type() != QDBusMessage::ReplyMessage) {
                                 shown_.erase(key);
                                 return;
                             }
                             shown.id = reply.arguments().value(0).toUInt();
                         });
}

DesktopNotifier::Entry DesktopNotifier::find(uint id, const QDBusMessage& signal) {
    return std::ranges::find_if(shown_, [&](const auto& entry) {
        return entry.second.id == id && entry.second.owner == signal.service();
    });
}

void DesktopNotifier::actionInvoked(uint id, const QString& action, const QDBusMessage& signal) {
    const Entry entry = find(id, signal);
    bool isNumber = false;
    const int index = action.toInt(&isNumber);
    if (entry == shown_.end() || !isNumber || index < 0 || index >= entry->second.actions.size()) {
        return;
    }
    const auto run = entry->second.actions[index].run;
    shown_.erase(entry);
    run();
}

void DesktopNotifier::notificationClosed(uint id, uint /*reason*/, const QDBusMessage& signal) {
    if (const Entry entry = find(id, signal); entry != shown_.end()) {
        shown_.erase(entry);
    }
}

Handle DesktopNotifier::look(std::function<void(bool)> done) {
    const auto step = std::make_shared<Handle>(); // The current call.
    *step = findOwner(
        bus_, service, timeOut,
        [connection = bus_, step, done = std::move(done)](const QString& owner) {
            if (!owner.isEmpty()) {
                done(true);
                return;
            }
            const auto question = QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s,
                                                                 bus, u"ListActivatableNames"_s);
            *step = callBus(connection, question, timeOut, [done](const QDBusMessage& names) {
                done(names.arguments().value(0).toStringList().contains(service));
            });
        });
    return Handle([step] { step->reset(); });
}

} // namespace ravelo
