#pragma once

#include "base/Handle.h"
#include "platform/LoginItem.h"

#include <QByteArray>
#include <QString>

namespace ravelo {

class DetachedJobs;

/// Starts the program at login by an entry in the user's autostart folder (Desktop Application
/// Autostart Specification 0.5, Desktop Entry Specification 1.5). Main thread.
class AutostartEntry final : public LoginItem {
public:
    /// `folder` is "autostart" in the user's XDG config folder, `program` an absolute path.
    AutostartEntry(const QString& folder, QString program, DetachedJobs& jobs);

    /// True also if the entry names another program, for example an older path of this one, unless
    /// `repair` has found it missing; false if it is disabled in the desktop's settings.
    [[nodiscard]] bool isEnabled() const override;

    /// Rewrites the entry if it is enabled but its program is missing. Checks that without
    /// blocking, because the program may be on a dead mount.
    void repair(const std::function<void(const Result<void>&)>& done) override;

    /// Writes or removes the entry.
    [[nodiscard]] Result<void> setEnabled(bool enabled) override;

private:
    QString path_;
    QString program_;
    QByteArray gone_; ///< The program in the entry, if found missing.
    DetachedJobs& jobs_;
    Handle looking_;
};

} // namespace ravelo
