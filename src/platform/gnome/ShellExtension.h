#pragma once

#include "base/Listeners.h"
#include "platform/DesktopExtension.h"

#include <QDBusConnection>
#include <QLatin1StringView>
#include <QObject>
#include <QString>
#include <QVariantMap>

class QDBusMessage;

namespace ravelo::gnome {

inline constexpr QLatin1StringView extensionId("companion@ravelo.org");

/// Whether this is a session of GNOME on Wayland, by its environment.
[[nodiscard]] bool isGnomeOnWayland();

/// Whether GNOME Shell runs our extension, in a compatible version. Waits for the shell's answer
/// for max. ten seconds; outside GNOME it returns at once. Also before the application object.
[[nodiscard]] bool isExtensionRunning();

/// What the shell's answer about our extension means; it is empty if the shell does not know it.
/// Pure.
[[nodiscard]] DesktopExtension::State stateOf(const QVariantMap& info);

/// `list`, a list of texts as gsettings prints it, with `name` in it; empty if it is no such list.
/// Pure.
[[nodiscard]] QString withName(const QString& list, QLatin1StringView name);

/// Our extension of GNOME Shell, which manages it over the session bus. A shell that has not seen
/// it yet, because it was installed after the login, gets it by the settings.
class ShellExtension final : public QObject, public DesktopExtension {
    Q_OBJECT

public:
    /// Whether this program was started with the extension running.
    enum class Used { yes, no };

    /// Asks at once, and after each change; does not wait.
    ShellExtension(QDBusConnection bus, Used used);

    [[nodiscard]] State state() const override { return state_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    void turnOn() override;

private Q_SLOTS:
    void refresh();

private:
    void call(const QString& method, std::function<void(const QDBusMessage&)> done);
    /// `off` is what it means if the shell does not run it.
    void refreshOr(State off);
    /// `otherwise`, unless it is in the list of those that are on.
    void refreshBySettings(State otherwise);
    void addToSettings();
    void set(State state);

    QDBusConnection bus_;
    Used used_;
    State state_ = State::notNeeded;
    Listeners<> changes_;
};

} // namespace ravelo::gnome
