#pragma once

#include "base/Handle.h"
#include "settings/AppSettings.h"
#include "ui/TitledWindow.h"

#include <QObject>
#include <QQmlEngine>

namespace ravelo {

class Screens;

/// The first-run setup. Its window exists from `show` until it is finished or closed; closed, setup
/// is still to be done. Main thread.
class OnboardingController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has one")
    Q_PROPERTY(ravelo::AppSettings* settings READ settings CONSTANT)
    Q_PROPERTY(bool hasNotch READ hasNotch NOTIFY hasNotchChanged)

public:
    /// All outlive it.
    OnboardingController(TitledWindow::Beside beside, AppSettings& settings, Screens& screens);
    ~OnboardingController() override;

    [[nodiscard]] AppSettings* settings() const { return &settings_; }

    /// Whether the main screen has a camera housing.
    [[nodiscard]] bool hasNotch() const;

    void show();

    /// Null while there is none.
    [[nodiscard]] TitledWindow* window() const { return window_; }

    /// The user is done with it, for good.
    Q_INVOKABLE void finish();

Q_SIGNALS:
    void hasNotchChanged();

private:
    void drop();

    TitledWindow::Beside beside_;
    AppSettings& settings_;
    Screens& screens_;
    TitledWindow* window_ = nullptr; ///< Owned. Not deleted at once: what closes it is in it.
    Handle screensMonitor_;
};

} // namespace ravelo
