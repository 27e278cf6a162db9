#include "platform/freedesktop/session/LoginSession.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView service("org.freedesktop.login1");
constexpr QLatin1StringView userPath("/org/freedesktop/login1/user/self");
constexpr QLatin1StringView userInterface("org.freedesktop.login1.User");
constexpr QLatin1StringView sessionInterface("org.freedesktop.login1.Session");
constexpr QLatin1StringView propertiesInterface("org.freedesktop.DBus.Properties");
const QString lockedHint = u"LockedHint"_s;

/// The object path in the property `Display`, a structure of an identifier and a path.
QString pathOf(const QVariant& display) {
    QString id;
    QDBusObjectPath path;
    const auto argument = display.value<QDBusArgument>();
    argument.beginStructure();
    argument >> id >> path;
    argument.endStructure();
    return path.path();
}

} // namespace

LoginSession::LoginSession(QDBusConnection bus) : bus_(std::move(bus)) {
    // The user's graphical session, because our process may be a service without one.
    ask(userPath, userInterface, u"Display"_s,
        [this](const QVariant& display) { follow(pathOf(display)); });
}

void LoginSession::follow(const QString& sessionPath) {
    // Connect before asking, so that no change is missed.
    bus_.connect(service, sessionPath, propertiesInterface, u"PropertiesChanged"_s, this,
                 SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    ask(sessionPath, sessionInterface, lockedHint,
        [this](const QVariant& locked) { setLocked(locked.toBool()); });
}

void LoginSession::ask(const QString& path, const QString& interface, const QString& property,
                       std::function<void(const QVariant&)> done) {
    auto call = QDBusMessage::createMethodCall(service, path, propertiesInterface, u"Get"_s);
    call << interface << property;
    auto* const watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done = std::move(done)] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid()) {
            done(reply.value().variant());
        }
        watcher->deleteLater();
    });
}

void LoginSession::propertiesChanged(const QString& interface, const QVariantMap& changed,
                                     const QStringList& /*invalidated*/) {
    if (interface == sessionInterface && changed.contains(lockedHint)) {
        setLocked(changed.value(lockedHint).toBool());
    }
}

void LoginSession::setLocked(bool locked) {
    if (std::exchange(locked_, locked) != locked) {
        listeners_.notify();
    }
}

} // namespace ravelo
