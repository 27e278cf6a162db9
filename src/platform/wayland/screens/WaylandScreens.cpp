#include "platform/wayland/screens/WaylandScreens.h"

#include "platform/wayland/connection/QtConnection.h"

#include <QGuiApplication>
#include <QScreen>

namespace ravelo::wayland {

namespace {

Screen toScreen(const QScreen& screen) {
    return {screen.name(), screen.geometry(), screen.availableGeometry(), {}, {}};
}

} // namespace

WaylandScreens::WaylandScreens() {
    for (QScreen* const screen : QGuiApplication::screens()) {
        watch(screen);
    }
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_, [this](QScreen* screen) {
        watch(screen);
        listeners_.notify();
    });
    // Queued: Qt still moves windows away from it. Some compositors give no other notice.
    QObject::connect(
        qGuiApp, &QGuiApplication::screenRemoved, &context_, [this] { listeners_.notify(); },
        Qt::QueuedConnection);
}

void WaylandScreens::watch(QScreen* screen) {
    QObject::connect(screen, &QScreen::geometryChanged, &context_, [this] { listeners_.notify(); });
    QObject::connect(screen, &QScreen::availableGeometryChanged, &context_,
                     [this] { listeners_.notify(); });
}

std::vector<Screen> WaylandScreens::all() const {
    std::vector<Screen> screens;
    for (QScreen* const screen : QGuiApplication::screens()) {
        if (qt::output(screen) != nullptr) {
            screens.push_back(toScreen(*screen));
        }
    }
    return screens;
}

std::optional<Screen> WaylandScreens::main() const {
    auto screens = all();
    return screens.empty() ? std::nullopt : std::optional(std::move(screens.front()));
}

QScreen* WaylandScreens::find(const QString& id) {
    for (QScreen* const screen : QGuiApplication::screens()) {
        if (screen->name() == id && qt::output(screen) != nullptr) {
            return screen;
        }
    }
    return nullptr;
}

} // namespace ravelo::wayland
