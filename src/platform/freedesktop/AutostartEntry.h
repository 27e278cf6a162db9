#pragma once

#include "base/Handle.h"
#include "platform/LoginItem.h"

#include <QByteArray>
#include <QString>

namespace ravelo {

class DetachedJobs;

/// Start at login by an entry in the user's autostart folder (freedesktop.org Desktop Application
/// Autostart Specification 0.5, Desktop Entry Specification 1.5). Main thread.
class AutostartEntry final : public LoginItem {
public:
    /// `folder`: "autostart" in the user's XDG config folder. `program`: the absolute path of what
    /// is to be started.
    AutostartEntry(const QString& folder, QString program, DetachedJobs& jobs);

    /// Also if the entry names another program, say an older place of this one, unless `repair` has
    /// found it gone; not if the user has switched it off in the desktop's own settings.
    [[nodiscard]] bool isEnabled() const override;

    /// Writes the entry again if it is switched on but its program is gone. The program may be on a
    /// mount whose server is gone: nobody waits for the answer.
    void repair(std::function<void(const Result<void>&)> done) override;

    /// Writes the entry again, or removes it.
    [[nodiscard]] Result<void> setEnabled(bool enabled) override;

private:
    QString path_;
    QString program_;
    QByteArray gone_; ///< A program that the entry named, once it is known to be gone.
    DetachedJobs& jobs_;
    Handle looking_;
};

} // namespace ravelo
