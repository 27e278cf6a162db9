#include "platform/system/SpawnedChild.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ravelo {

namespace {

using Pipe = std::array<int, 2>; // The end to read from, the end to write to.
using Pipes = std::array<Pipe, 3>;

constexpr int roomy = 1 << 20; ///< Bytes; a program that talks much is not to wait for a reader.

bool openPipes(Pipes& pipes) {
    for (Pipe& pipe : pipes) {
        if (pipe2(pipe.data(), O_CLOEXEC) != 0) {
            return false;
        }
        fcntl(pipe[1], F_SETPIPE_SZ, roomy);
    }
    return true;
}

void closePipes(const Pipes& pipes) {
    for (const Pipe& pipe : pipes) {
        for (const int end : pipe) {
            if (end >= 0) {
                close(end);
            }
        }
    }
}

struct Program {
    QByteArray path;
    QList<QByteArray> arguments; ///< The first is the path again.
    QList<QByteArray> environment;
};

/// As execve(2) takes it, valid as long as the list.
std::vector<char*> terminated(const QList<QByteArray>& list) {
    std::vector<char*> pointers;
    for (const QByteArray& one : list) {
        pointers.push_back(const_cast<char*>(one.constData()));
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// The child's process number, or 0.
pid_t spawn(const Program& program, const Pipes& pipes) {

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    for (int stream = 0; stream < 3; ++stream) {
        const Pipe& pipe = pipes.at(static_cast<size_t>(stream));
        posix_spawn_file_actions_adddup2(&files, stream == STDIN_FILENO ? pipe[0] : pipe[1],
                                         stream);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    pid_t child = 0;
    if (posix_spawn(&child, program.path.constData(), &files, &attributes,
                    terminated(program.arguments).data(),
                    terminated(program.environment).data()) != 0) {
        child = 0;
    }
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return child;
}

void runToItsEnd(const Program& program) {
    Pipes pipes = {Pipe{-1, -1}, Pipe{-1, -1}, Pipe{-1, -1}};
    if (openPipes(pipes)) {
        const pid_t child = spawn(program, pipes);
        while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    closePipes(pipes);
}

} // namespace

SpawnedChild::SpawnedChild(DetachedJobs& jobs, const QProcessEnvironment& environment)
    : jobs_(jobs) {
    for (const QString& variable : environment.toStringList()) {
        environment_.append(variable.toLocal8Bit());
    }
}

Handle SpawnedChild::run(const QByteArray& path, const QList<QByteArray>& arguments,
                         std::function<void()> done) {
    const Program program{path, QList<QByteArray>{path} + arguments, environment_};
    return jobs_.run([program] { runToItsEnd(program); }, std::move(done));
}

} // namespace ravelo
