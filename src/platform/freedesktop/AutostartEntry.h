#pragma once

#include "platform/LoginItem.h"

#include <QString>

namespace ravelo {

/// Start at login by an entry in the user's autostart folder (freedesktop.org Desktop Application
/// Autostart Specification 0.5, Desktop Entry Specification 1.5). Main thread.
class AutostartEntry final : public LoginItem {
public:
    /// `folder`: "autostart" in the user's XDG config folder. `program`: the absolute path of what
    /// is to be started.
    AutostartEntry(const QString& folder, QString program);

    /// Also if the entry names another program, say an older place of this one, as long as that is
    /// there; not if the user has switched it off in the desktop's own settings.
    [[nodiscard]] bool isEnabled() const override;

    /// Writes the entry again if it is switched on but its program is gone.
    [[nodiscard]] Result<void> repair() override;

    /// Writes the entry anew, or removes it.
    [[nodiscard]] Result<void> setEnabled(bool enabled) override;

private:
    QString path_;
    QString program_;
};

} // namespace ravelo
