#pragma once

#include "updates/UpdateState.h"

#include <QObject>

#include <functional>
#include <memory>

namespace ravelo {

/// Checks for a newer version of this program and installs it, both only when the user asks for it.
/// Main thread.
class Updater : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString details READ details NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool canInstall READ canInstall NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)

public:
    /// `current` is the version of this program.
    Updater(std::unique_ptr<PackageUpdates> service, QString current);
    ~Updater() override;

    /// The process's own: the first call makes it, and nothing destroys it.
    [[nodiscard]] static Updater& shared(const std::function<std::unique_ptr<Updater>()>& make);

    [[nodiscard]] const UpdateState& state() const { return state_; }

    [[nodiscard]] QString title() const { return message(state_, current_).title; }

    [[nodiscard]] QString details() const { return message(state_, current_).details; }

    [[nodiscard]] bool isBusy() const { return state_.isBusy(); }

    [[nodiscard]] bool canInstall() const { return state_.phase == UpdateState::Phase::available; }

    /// From 0 to 1 while installing, or -1 if unknown.
    [[nodiscard]] double progress() const;

    /// Does nothing while it is checking or installing.
    Q_INVOKABLE void checkForUpdates();

    /// Installs the update that was found.
    Q_INVOKABLE void install();

Q_SIGNALS:
    void changed();

private:
    void become(UpdateState state);

    std::unique_ptr<PackageUpdates> service_;
    QString current_;
    UpdateState state_;
    Handle work_;
};

} // namespace ravelo
