#include "platform/system/SpawnedChild.h"

#include "platform/system/ExecArguments.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ravelo {

namespace {

struct Program {
    QByteArray path;
    QList<QByteArray> arguments; ///< Starting with the path.
    QList<QByteArray> environment;
    QByteArray folder; ///< The working directory.
};

void remove(const QByteArray& folder) {
    if (rmdir(folder.constData()) != 0 && errno == ENOTEMPTY) {
        QDir(QFile::decodeName(folder)).removeRecursively();
    }
}

/// Also empties a folder left by an earlier run.
bool makeEmpty(const QByteArray& folder) {
    remove(folder);
    mkdir(folder.left(folder.lastIndexOf('/')).constData(), S_IRWXU); // Usually it exists.
    return mkdir(folder.constData(), S_IRWXU) == 0;
}

/// The child's process ID, or 0.
pid_t spawn(const Program& program) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_RDWR, 0);
    }
    posix_spawn_file_actions_addchdir_np(&actions, program.folder.constData());
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    pid_t child = 0;
    if (posix_spawn(&child, program.path.constData(), &actions, &attributes,
                    terminated(program.arguments).data(),
                    terminated(program.environment).data()) != 0) {
        child = 0;
    }
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return child;
}

void runToItsEnd(const Program& program) {
    if (!makeEmpty(program.folder)) {
        return; // It is not safe to run elsewhere.
    }
    const pid_t child = spawn(program);
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    remove(program.folder);
}

} // namespace

SpawnedChild::SpawnedChild(DetachedJobs& jobs, const QProcessEnvironment& environment,
                           QByteArray folder)
    : jobs_(jobs), environment_(variables(environment)), folder_(std::move(folder)) {}

Handle SpawnedChild::run(const QByteArray& path, const QList<QByteArray>& arguments,
                         std::function<void()> done) {
    const Program program{path, QList<QByteArray>{path} + arguments, environment_, folder_};
    return jobs_.run([program] { runToItsEnd(program); }, std::move(done));
}

} // namespace ravelo
