#pragma once

#include "Stage.h"
#include "fakes/FakeDesktopExtension.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/setup/OnboardingController.h"
#include "ui/updates/UpdateWindow.h"
#include "updates/Updater.h"

#include <QQuickView>

namespace ravelo {

/// Scenes in the settings, the setup and the update window.
class WindowScenes {
public:
    WindowScenes(const QString& scene, PanelWorld& world, QQuickView& panel);

    /// The window of the scene; null if it is one of the panel's.
    [[nodiscard]] QQuickWindow* play();

private:
    [[nodiscard]] QQuickWindow& playSettings();
    [[nodiscard]] QQuickWindow& playSetup();
    [[nodiscard]] QQuickWindow* playUpdates();

    const QString scene_;
    QQuickView& panel_;
    SettingsWindow settings_;
    FakeDesktopExtension extension_;
    OnboardingController onboarding_;
    Updater updater_;
    UpdateWindow updates_;
};

} // namespace ravelo
