#pragma once

#include "ui/windows/TitledWindow.h"
#include "updates/Updater.h"

#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace ravelo {

/// The update window: created at first use, hidden when closed. Main thread.
class UpdateWindow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::Updater* updater READ updater CONSTANT)

public:
    /// Both outlive this.
    UpdateWindow(TitledWindow::Beside beside, Updater& updater);
    ~UpdateWindow() override;

    [[nodiscard]] Updater* updater() const { return &updater_; }

    /// Shows it and checks for updates, unless that or an installation is in progress.
    void show();

private:
    TitledWindow::Beside beside_;
    Updater& updater_;
    std::unique_ptr<TitledWindow> window_;
};

} // namespace ravelo
