#include "platform/freedesktop/session/ScreenSaverBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariant>

#include <algorithm>
#include <array>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Service and interface have the same name.
struct Saver {
    QLatin1StringView name;
    QLatin1StringView path;
};

constexpr std::array savers = {
    Saver{"org.freedesktop.ScreenSaver"_L1, "/ScreenSaver"_L1},
    Saver{"org.gnome.ScreenSaver"_L1, "/org/gnome/ScreenSaver"_L1},
    Saver{"org.cinnamon.ScreenSaver"_L1, "/org/cinnamon/ScreenSaver"_L1},
    Saver{"org.mate.ScreenSaver"_L1, "/org/mate/ScreenSaver"_L1},
    Saver{"org.xfce.ScreenSaver"_L1, "/org/xfce/ScreenSaver"_L1},
};

} // namespace

ScreenSaverBus::ScreenSaverBus(QDBusConnection bus) : bus_(std::move(bus)) {
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& name, const QString& /*before*/, const QString& owner) {
                setOwner(name, owner);
            });
    for (const Saver& saver : savers) {
        watcher_.addWatchedService(saver.name);
        // From any path, because some send from two, and from any sender, because matching one
        // blocks.
        bus_.connect({}, {}, saver.name, u"ActiveChanged"_s, this,
                     SLOT(activeChanged(bool, QDBusMessage)));
        auto call = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                   u"org.freedesktop.DBus"_s, u"GetNameOwner"_s);
        call << QString(saver.name);
        ask(call, [this, saver](const QVariant& owner) { setOwner(saver.name, owner.toString()); });
    }
}

void ScreenSaverBus::ask(const QDBusMessage& call, std::function<void(const QVariant&)> done) {
    auto* const watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done = std::move(done)] {
        if (!watcher->isError()) {
            done(watcher->reply().arguments().value(0));
        }
        watcher->deleteLater();
    });
}

void ScreenSaverBus::setOwner(const QString& name, const QString& owner) {
    if (owners_.value(name) == owner) {
        return;
    }
    owners_[name] = owner;
    setActive(name, false);
    const auto saver = std::ranges::find(savers, name, &Saver::name);
    if (owner.isEmpty() || saver == savers.end()) {
        return;
    }
    auto call = QDBusMessage::createMethodCall(owner, saver->path, name, u"GetActive"_s);
    call.setAutoStartService(false);
    ask(call, [this, name, owner](const QVariant& active) {
        if (owners_.value(name) == owner) {
            setActive(name, active.toBool());
        }
    });
}

void ScreenSaverBus::activeChanged(bool active, const QDBusMessage& signal) {
    if (owners_.value(signal.interface()) == signal.service()) {
        setActive(signal.interface(), active);
    }
}

void ScreenSaverBus::setActive(const QString& interface, bool active) {
    const bool before = isLocked();
    if (active) {
        active_.insert(interface);
    } else {
        active_.remove(interface);
    }
    if (isLocked() != before) {
        listeners_.notify();
    }
}

} // namespace ravelo
