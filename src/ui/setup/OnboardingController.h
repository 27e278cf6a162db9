#pragma once

#include "base/Handle.h"
#include "settings/AppSettings.h"
#include "ui/windows/ExtensionOffer.h"
#include "ui/windows/ShortcutChoice.h"
#include "ui/windows/TitledWindow.h"

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class Screens;

/// The first-run setup. The window exists from `show` until it is finished or closed; closing it
/// does not finish the setup. Main thread.
class OnboardingController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::AppSettings* settings READ settings CONSTANT)
    Q_PROPERTY(ravelo::ExtensionOffer* extension READ extension CONSTANT)
    Q_PROPERTY(ravelo::ShortcutChoice* shortcut READ shortcut CONSTANT)
    Q_PROPERTY(bool hasNotch READ hasNotch NOTIFY hasNotchChanged)

public:
    /// All outlive this. `extension` is null if the desktop needs none, and `shortcut` if it lets
    /// no program take keys.
    OnboardingController(TitledWindow::Beside beside, AppSettings& settings, Screens& screens,
                         DesktopExtension* extension = nullptr, GlobalShortcut* shortcut = nullptr);
    ~OnboardingController() override;

    [[nodiscard]] AppSettings* settings() const { return &settings_; }

    [[nodiscard]] ExtensionOffer* extension() { return &extension_; }

    [[nodiscard]] ShortcutChoice* shortcut() { return &shortcut_; }

    /// The main screen has a camera housing.
    [[nodiscard]] bool hasNotch() const;

    void show();

    /// Null if not shown.
    [[nodiscard]] TitledWindow* window() const { return window_; }

    /// Finishes the setup for good.
    Q_INVOKABLE void finish();

Q_SIGNALS:
    void hasNotchChanged();

private:
    void drop();

    TitledWindow::Beside beside_;
    AppSettings& settings_;
    Screens& screens_;
    ExtensionOffer extension_;
    ShortcutChoice shortcut_;
    TitledWindow* window_ = nullptr; ///< Owned. Deleted later, because its own events close it.
    Handle screensMonitor_;
};

} // namespace ravelo
