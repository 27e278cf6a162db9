#include "platform/system/NightShiftScript.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <array>
#include <system_error>
#include <thread>
#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Empty where the user has none, or one that runs nothing.
QString loginShell() {
    std::array<char, 4096> texts{};
    passwd entry{};
    passwd* user = nullptr;
    getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &user);
    const QString shell = user == nullptr ? QString() : QFile::decodeName(user->pw_shell);
    const QString name = QFileInfo(shell).fileName();
    return name == "nologin"_L1 || name == "false"_L1 ? QString() : shell;
}

bool startBy(const QString& shell, const QProcessEnvironment& environment) {
    if (shell.isEmpty()) {
        return false;
    }
    QProcess process;
    process.setProgram(shell);
    process.setArguments({u"-lc"_s, u"\"$HOME/.qvx/bin/turno-noite\""_s});
    process.setProcessEnvironment(environment);
    return process.startDetached();
}

} // namespace

NightShiftScript::NightShiftScript(const QProcessEnvironment& environment, QString shell)
    : environment_(environment), shell_(std::move(shell)) {}

void NightShiftScript::start() {
    // Elsewhere, because a start lasts until the shell is found on the disk and loaded.
    try {
        std::thread([shell = shell_, environment = environment_] {
            startBy(shell, environment) || startBy(loginShell(), environment) ||
                startBy(u"/bin/sh"_s, environment);
        }).detach();
    } catch (const std::system_error&) { // The machine is at its limit; nothing is started.
    }
}

} // namespace ravelo
