#include "platform/freedesktop/ScreenSaverBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <array>

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
    for (const Saver& saver : savers) {
        // From any path: some send it from two.
        bus_.connect({}, {}, saver.name, u"ActiveChanged"_s, this,
                     SLOT(activeChanged(bool, QDBusMessage)));
        auto call =
            QDBusMessage::createMethodCall(saver.name, saver.path, saver.name, u"GetActive"_s);
        call.setAutoStartService(false);
        auto* const watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, saver] {
            const QDBusPendingReply<bool> reply = *watcher;
            if (reply.isValid()) {
                setActive(saver.name, reply.value());
            }
            watcher->deleteLater();
        });
    }
}

void ScreenSaverBus::activeChanged(bool active, const QDBusMessage& signal) {
    setActive(signal.interface(), active);
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
