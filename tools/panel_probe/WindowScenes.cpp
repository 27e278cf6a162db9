#include "WindowScenes.h"

#include "ui/windows/TitledWindow.h"

#include <QGuiApplication>
#include <QHash>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// A package service with the state of the scene.
class SceneUpdates : public PackageUpdates {
public:
    explicit SceneUpdates(QString scene) : scene_(std::move(scene)) {}

    Handle check(std::function<void(Checked)> done) override {
        if (scene_ == u"update-none") {
            done(tl::unexpected(UpdateProblem{UpdateProblem::Kind::noService, {}}));
        } else if (scene_ == u"update-newest") {
            done(std::optional<AvailableUpdate>());
        } else if (scene_ != u"update-checking") {
            done(AvailableUpdate{u"0.3"_s, u"ravelo;0.3;amd64;ravelo"_s});
        }
        return {};
    }

    Handle install(const AvailableUpdate& /*update*/,
                   std::function<void(std::optional<int>)> progress,
                   std::function<void(Installed)> /*done*/) override {
        progress(40);
        return {};
    }

private:
    QString scene_;
};

/// With Ctrl; 0 for the first page.
int keyOfPage(const QString& part) {
    static const QHash<QString, int> keys{{u"capture"_s, Qt::Key_2},
                                          {u"storage"_s, Qt::Key_3},
                                          {u"erase"_s, Qt::Key_3},
                                          {u"keys"_s, Qt::Key_4},
                                          {u"more"_s, Qt::Key_5}};
    return keys.value(part);
}

} // namespace

WindowScenes::WindowScenes(const QString& scene, PanelWorld& world, QQuickView& panel)
    : scene_(scene),
      panel_(panel),
      settings_({{panel}, world.store, world.settings, [] {}, u"X11 (set by RAVELO_PLATFORM)"_s}),
      onboarding_({panel}, world.settings, world.screens,
                  scene.startsWith(u"setup-gnome"_s) ? &extension_ : nullptr),
      updater_(std::make_unique<SceneUpdates>(scene), u"0.2"_s),
      updates_({panel}, updater_) {}

QQuickWindow* WindowScenes::play() {
    if (scene_.startsWith(u"settings"_s)) {
        return &playSettings();
    }
    if (scene_.startsWith(u"setup"_s)) {
        return &playSetup();
    }
    return scene_.startsWith(u"update-"_s) ? playUpdates() : nullptr;
}

QQuickWindow& WindowScenes::playSettings() {
    settings_.show();
    settle();
    Hand hand(*settings_.window());
    const QString part = scene_.section(u'-', 1, 1);
    if (const int key = keyOfPage(part)) {
        hand.press(key, Qt::ControlModifier);
        settle();
    }
    if (part == u"capture") {
        const bool tries = scene_ == u"settings-capture";
        hand.item(u"triedText"_s).setProperty("text", tries ? u"ship 042-1187 today"_s : u""_s);
        hand.item(tries ? u"triedText"_s : u"page/keepSelectedText"_s).forceActiveFocus();
    } else if (part == u"hover") {
        hand.point(u"launchAtLogin"_s);
    } else if (part == u"pressed") {
        hand.hold(u"launchAtLogin"_s);
    } else if (part == u"erase" || scene_ == u"settings-more-end") {
        hand.scroll({230, 300}, -3000);
        settle();
        if (part == u"erase") {
            hand.click(u"eraseEverything"_s);
        }
    }
    settle();
    return *settings_.window();
}

QQuickWindow& WindowScenes::playSetup() {
    onboarding_.show();
    settle();
    Hand hand(*onboarding_.window());
    if (scene_ != u"setup") {
        hand.click(u"start"_s);
        if (scene_ != u"setup-mac") {
            hand.click(u"done"_s);
            settle();
        }
        if (scene_.startsWith(u"setup-gnome"_s)) {
            hand.click(u"continue"_s);
            settle();
        } else if (scene_ != u"setup-mac") {
            hand.click(scene_ == u"setup-encryption" ? u"keyring"_s : u"passphrase"_s);
        }
        if (scene_ == u"setup-gnome-done") {
            hand.click(u"turnOn"_s);
        }
        hand.point(QPointF(5, 300));
        settle();
    }
    return *onboarding_.window();
}

QQuickWindow* WindowScenes::playUpdates() {
    updates_.show();
    if (scene_ == u"update-installing") {
        updater_.install();
    }
    settle();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return qobject_cast<QQuickWindow*>(*std::ranges::find_if(
        windows, [this](const QWindow* one) { return one->isVisible() && one != &panel_; }));
}

} // namespace ravelo
