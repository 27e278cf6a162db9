#pragma once

#include "ui/TitledWindow.h"
#include "updates/Updater.h"

#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace ravelo {

/// The window that tells of updates: made at the first use and kept. Closed, it is hidden. Main
/// thread.
class UpdateWindow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has one")
    Q_PROPERTY(ravelo::Updater* updater READ updater CONSTANT)

public:
    /// Both outlive it.
    UpdateWindow(TitledWindow::Beside beside, Updater& updater);
    ~UpdateWindow() override;

    [[nodiscard]] Updater* updater() const { return &updater_; }

    /// Shows it, and looks for updates unless it does so or installs one.
    void show();

private:
    TitledWindow::Beside beside_;
    Updater& updater_;
    std::unique_ptr<TitledWindow> window_;
};

} // namespace ravelo
