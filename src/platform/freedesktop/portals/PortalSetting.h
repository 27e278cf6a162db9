#pragma once

#include "base/Listeners.h"
#include "platform/IconPreference.h"
#include "platform/MotionPreference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>

#include <functional>

namespace ravelo {

/// One key of "org.gnome.desktop.interface", which desktops of every kind provide by the settings
/// portal (org.freedesktop.portal.Settings). Main thread.
class PortalSetting final : public QObject {
    Q_OBJECT

public:
    /// Asks for the value and follows it; does not wait.
    PortalSetting(QDBusConnection bus, QString key);

    /// Invalid until the portal has answered, and if there is none.
    [[nodiscard]] const QVariant& value() const { return value_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) {
        return listeners_.add(std::move(callback));
    }

private Q_SLOTS:
    /// Takes the message, as Qt may not know QDBusVariant yet when it connects.
    void settingChanged(const QDBusMessage& change);

private:
    void set(const QVariant& value);

    const QString key_;
    QVariant value_;
    Listeners<> listeners_;
};

/// The key "icon-theme". Main thread.
class PortalIconPreference final : public IconPreference {
public:
    explicit PortalIconPreference(QDBusConnection bus)
        : setting_(std::move(bus), QStringLiteral("icon-theme")) {}

    [[nodiscard]] QString theme() const override { return setting_.value().toString(); }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return setting_.onChange(std::move(callback));
    }

private:
    PortalSetting setting_;
};

/// The key "enable-animations". Main thread.
class PortalMotionPreference final : public MotionPreference {
public:
    explicit PortalMotionPreference(QDBusConnection bus)
        : setting_(std::move(bus), QStringLiteral("enable-animations")) {}

    [[nodiscard]] bool isReduced() const override {
        return setting_.value().isValid() && !setting_.value().toBool();
    }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return setting_.onChange(std::move(callback));
    }

private:
    PortalSetting setting_;
};

} // namespace ravelo
