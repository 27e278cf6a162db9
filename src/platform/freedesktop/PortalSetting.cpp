#include "platform/freedesktop/PortalSetting.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView group("org.gnome.desktop.interface");
constexpr QLatin1StringView service("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView path("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView interface("org.freedesktop.portal.Settings");

/// The portal's method Read packs the value twice.
QVariant unpacked(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

PortalSetting::PortalSetting(QDBusConnection bus, QString key)
    : bus_(std::move(bus)), key_(std::move(key)) {
    // From any sender, because matching one blocks.
    bus_.connect({}, path, interface, u"SettingChanged"_s, this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    read(Times::twice);
}

// Twice, because Qt subscribes to a signal in its own thread, after the first call, and the bus gets
// to know of that only with the next message.
void PortalSetting::read(Times times) {
    auto call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call << QString(group) << key_;
    auto* const watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, times] {
        if (!watcher->isError()) {
            set(watcher->reply().arguments().value(0));
            if (times == Times::twice) {
                read(Times::once);
            }
        }
        watcher->deleteLater();
    });
}

void PortalSetting::settingChanged(const QString& changedGroup, const QString& key,
                                   const QDBusVariant& value) {
    if (changedGroup == group && key == key_) {
        set(value.variant());
    }
}

void PortalSetting::set(const QVariant& value) {
    QVariant plain = unpacked(value);
    if (std::exchange(value_, plain) != plain) {
        listeners_.notify();
    }
}

} // namespace ravelo
