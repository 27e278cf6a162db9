#include "live/support/Xvfb.h"

#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ravelo::live {

namespace {

/// Becomes the server, which writes the number of its display into `report`.
[[noreturn]] void become(int report) {
    prctl(PR_SET_PDEATHSIG, SIGTERM); // On SIGTERM it removes its lock and socket.
    const std::string number = std::to_string(report);
    const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
    execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-nolisten", "tcp", "-noreset", "-screen",
           "0", "1280x800x24", nullptr);
    _exit(127);
}

} // namespace

Xvfb::Xvfb() {
    int report[2];
    if (pipe(report) != 0) {
        return;
    }
    process_ = fork();
    if (process_ == 0) {
        close(report[0]);
        become(report[1]);
    }
    close(report[1]);
    std::string number;
    for (char digit = 0; read(report[0], &digit, 1) == 1 && digit != '\n';) {
        number += digit;
    }
    close(report[0]);
    if (!number.empty()) {
        display_ = ":" + number;
    }
}

Xvfb::~Xvfb() {
    if (process_ > 0) {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
}

} // namespace ravelo::live
