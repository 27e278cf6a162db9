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

/// Empty if the user has none that can run anything.
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
    // On a thread, because starting waits until the shell has been loaded from the disk.
    try {
        std::thread([shell = shell_, environment = environment_] {
            startBy(shell, environment) || startBy(loginShell(), environment) ||
                startBy(u"/bin/sh"_s, environment);
        }).detach();
    } catch (const std::system_error&) { // The thread limit is reached; nothing is started.
    }
}

} // namespace ravelo
