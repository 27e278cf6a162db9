#pragma once

#include "base/Handle.h"
#include "settings/AppSettings.h"
#include "ui/windows/ExtensionOffer.h"
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
    Q_PROPERTY(bool hasNotch READ hasNotch NOTIFY hasNotchChanged)

public:
    /// All outlive this. `extension` is null if the desktop needs none.
    OnboardingController(TitledWindow::Beside beside, AppSettings& settings, Screens& screens,
                         DesktopExtension* extension = nullptr);
    ~OnboardingController() override;

    [[nodiscard]] AppSettings* settings() const { return &settings_; }

    [[nodiscard]] ExtensionOffer* extension() { return &extension_; }

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
    TitledWindow* window_ = nullptr; ///< Owned. Deleted later, because its own events close it.
    Handle screensMonitor_;
};

} // namespace ravelo
