#include "platform/system/NightShiftScript.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Empty where the user has none, or one that runs nothing.
QString loginShell() {
    const passwd* const user = getpwuid(getuid());
    const QString shell = user == nullptr ? QString() : QFile::decodeName(user->pw_shell);
    const QString name = QFileInfo(shell).fileName();
    return name == "nologin"_L1 || name == "false"_L1 ? QString() : shell;
}

} // namespace

NightShiftScript::NightShiftScript(QProcessEnvironment environment, QString shell)
    : environment_(std::move(environment)), shell_(std::move(shell)) {}

void NightShiftScript::start() {
    startBy(shell_) || startBy(loginShell()) || startBy(u"/bin/sh"_s);
}

bool NightShiftScript::startBy(const QString& shell) const {
    if (shell.isEmpty()) {
        return false;
    }
    QProcess process;
    process.setProgram(shell);
    process.setArguments({u"-lc"_s, u"\"$HOME/.qvx/bin/turno-noite\""_s});
    process.setProcessEnvironment(environment_);
    return process.startDetached();
}

} // namespace ravelo
