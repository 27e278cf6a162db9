#include "platform/system/SystemPrograms.h"

#include "platform/system/ExecArguments.h"

#include <QFile>
#include <QStandardPaths>

#include <csignal>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// QProcess accepts only text as arguments.
void startDetached(const QByteArray& path, const QList<QByteArray>& arguments,
                   const QList<QByteArray>& environment) {
    const QList<QByteArray> all = QList<QByteArray>{path} + arguments;
    const std::vector<char*> argv = terminated(all);
    const std::vector<char*> envp = terminated(environment);
    // Twice, so that the program need not be waited for. After fork only async-signal-safe
    // functions may be called.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (fork() == 0) {
            sigset_t none;
            sigemptyset(&none);
            sigprocmask(SIG_SETMASK, &none, nullptr);
            execve(path.constData(), argv.data(), envp.data());
        }
        _exit(0);
    }
    if (child > 0) {
        waitpid(child, nullptr, 0);
    }
}

} // namespace

SystemPrograms::SystemPrograms(DetachedJobs& jobs, QProcessEnvironment environment) : jobs_(jobs) {
    for (const auto& ours :
         {u"XDG_ACTIVATION_TOKEN"_s, u"DESKTOP_STARTUP_ID"_s, u"WAYLAND_SOCKET"_s}) {
        environment.remove(ours); // Each is good for one process only.
    }
    environment_ = variables(environment);
}

Handle SystemPrograms::find(const QStringList& names, std::function<void(QByteArray)> done) {
    const auto found = std::make_shared<QByteArray>();
    auto look = [names, found] {
        for (const QString& name : names) {
            if (found->isEmpty()) {
                *found = QFile::encodeName(QStandardPaths::findExecutable(name));
            }
        }
    };
    return jobs_.run(std::move(look), [found, done = std::move(done)] { done(*found); });
}

void SystemPrograms::start(const QByteArray& path, const QList<QByteArray>& arguments) {
    // Dropping the handle does not stop it, only the notification of its end.
    const Handle started =
        jobs_.run([path, arguments,
                   environment = environment_] { startDetached(path, arguments, environment); },
                  [] {});
}

} // namespace ravelo
