#pragma once

#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/TitledWindow.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <memory>

namespace ravelo {

/// The settings window: made at the first use and kept. Closed, it is hidden. Main thread.
class SettingsWindow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has one")
    Q_PROPERTY(ravelo::Store* store READ store CONSTANT)
    Q_PROPERTY(ravelo::AppSettings* settings READ settings CONSTANT)
    Q_PROPERTY(int clipCount READ clipCount NOTIFY clipsChanged)

public:
    /// All of it outlives the window.
    struct Subjects {
        TitledWindow::Beside beside;
        Store& store;
        AppSettings& settings;
        std::function<void()> quit; ///< Ends the program, later than at once.
    };

    explicit SettingsWindow(Subjects subjects);
    ~SettingsWindow() override;

    [[nodiscard]] Store* store() const { return &subjects_.store; }

    [[nodiscard]] AppSettings* settings() const { return &subjects_.settings; }

    [[nodiscard]] int clipCount() const;

    void show();

    /// Null before the first use.
    [[nodiscard]] TitledWindow* window() const { return window_.get(); }

    Q_INVOKABLE void quit() { subjects_.quit(); }

Q_SIGNALS:
    void clipsChanged();

private:
    Subjects subjects_;
    std::unique_ptr<TitledWindow> window_;
};

} // namespace ravelo
