#include "platform/freedesktop/portals/PortalSetting.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

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

PortalSetting::PortalSetting(QDBusConnection bus, QString key) : key_(std::move(key)) {
    // From any sender, because matching one blocks.
    bus.connect({}, path, interface, u"SettingChanged"_s, this, SLOT(settingChanged(QDBusMessage)));
    auto call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call << QString(group) << key_;
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        if (!watcher->isError()) {
            set(watcher->reply().arguments().value(0));
        }
        watcher->deleteLater();
    });
}

void PortalSetting::settingChanged(const QDBusMessage& change) {
    const QVariantList arguments = change.arguments();
    if (arguments.value(0).toString() == group && arguments.value(1).toString() == key_) {
        set(arguments.value(2));
    }
}

void PortalSetting::set(const QVariant& value) {
    const QVariant plain = unpacked(value);
    if (std::exchange(value_, plain) != plain) {
        listeners_.notify();
    }
}

} // namespace ravelo
