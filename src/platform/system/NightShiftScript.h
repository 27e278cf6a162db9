#pragma once

#include "platform/NightShift.h"

#include <QProcessEnvironment>
#include <QString>

namespace ravelo {

/// Runs the script ~/.qvx/bin/turno-noite in a login shell, in a new session that outlives this
/// program, with this program's standard streams. Main thread.
class NightShiftScript final : public NightShift {
public:
    /// `environment` is for the script. If `shell` does not exist, the user's login shell runs it.
    explicit NightShiftScript(const QProcessEnvironment& environment,
                              QString shell = QStringLiteral("/bin/zsh"));

    void start() override;

private:
    QProcessEnvironment environment_;
    QString shell_;
};

} // namespace ravelo
