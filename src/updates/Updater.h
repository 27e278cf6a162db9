#pragma once

#include "updates/UpdateState.h"

#include <QObject>

#include <memory>

namespace ravelo {

/// Looks for a newer version of this program when its user asks for it, and installs it when told
/// to. Main thread.
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

    /// How `shared` asks for updates; once, before its first use.
    static void provide(std::unique_ptr<PackageUpdates> service, const QString& current);

    /// The process's own, never destroyed.
    [[nodiscard]] static Updater& shared();

    [[nodiscard]] const UpdateState& state() const { return state_; }

    [[nodiscard]] QString title() const { return message(state_, current_).title; }

    [[nodiscard]] QString details() const { return message(state_, current_).details; }

    [[nodiscard]] bool isBusy() const { return state_.isBusy(); }

    [[nodiscard]] bool canInstall() const { return state_.phase == UpdateState::Phase::available; }

    /// From 0 to 1 while it installs and it is known, else -1.
    [[nodiscard]] double progress() const;

    /// Anew, unless it is at work already.
    Q_INVOKABLE void checkForUpdates();

    /// What was found.
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
