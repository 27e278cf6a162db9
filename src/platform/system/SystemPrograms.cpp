#include "platform/system/SystemPrograms.h"

#include <QFile>
#include <QStandardPaths>

#include <csignal>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ravelo {

namespace {

/// QProcess accepts only text as arguments.
void startDetached(const QByteArray& path, const QList<QByteArray>& arguments) {
    std::vector<char*> argv = {const_cast<char*>(path.constData())};
    for (const QByteArray& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.constData()));
    }
    argv.push_back(nullptr);
    // Twice, so that the program need not be waited for. After fork only async-signal-safe
    // functions may be called.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (fork() == 0) {
            sigset_t none;
            sigemptyset(&none);
            sigprocmask(SIG_SETMASK, &none, nullptr);
            execv(path.constData(), argv.data());
        }
        _exit(0);
    }
    if (child > 0) {
        waitpid(child, nullptr, 0);
    }
}

} // namespace

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
    const Handle started = jobs_.run([path, arguments] { startDetached(path, arguments); }, [] {});
}

} // namespace ravelo
