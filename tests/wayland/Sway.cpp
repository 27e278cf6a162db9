#include "wayland/Sway.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ravelo::live {

namespace {

namespace fs = std::filesystem;

const passwd* otherUser() {
    return geteuid() == 0 ? getpwnam("nobody") : nullptr;
}

std::string makeFolder() {
    std::string folder = fs::temp_directory_path() / "ravelo-sway-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) {
        return {};
    }
    if (const passwd* user = otherUser();
        user != nullptr && chown(folder.c_str(), user->pw_uid, user->pw_gid) != 0) {
        return {};
    }
    return folder;
}

/// Becomes the compositor, which reports its two sockets.
[[noreturn]] void become(const std::string& folder, int report) {
    const fs::path configuration = fs::path(folder) / "config";
    std::ofstream(configuration) << "output HEADLESS-1 resolution 1280x800 position 0 0\n"
                                    "output HEADLESS-2 resolution 1280x800 position 1280 0\n"
                                    "default_border none\n"
                                    "xwayland disable\n"
                                    "exec echo \"$WAYLAND_DISPLAY $SWAYSOCK\" >&"
                                 << report << '\n';
    if (const passwd* user = otherUser();
        user != nullptr &&
        (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0)) {
        _exit(126);
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM); // After the change of user, which resets it.
    setenv("HOME", folder.c_str(), 1);
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
    setenv("WLR_BACKENDS", "headless", 1);
    setenv("WLR_LIBINPUT_NO_DEVICES", "1", 1);
    setenv("WLR_RENDERER", "pixman", 1);
    for (const char* ofTheSession : {"WAYLAND_DISPLAY", "DISPLAY", "SWAYSOCK", "WLR_BACKEND"}) {
        unsetenv(ofTheSession);
    }
    const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
    execlp("sway", "sway", "-c", configuration.c_str(), nullptr);
    _exit(127);
}

} // namespace

Sway::Sway() : folder_(makeFolder()) {
    int report[2];
    if (folder_.empty() || pipe(report) != 0) {
        return;
    }
    process_ = fork();
    if (process_ == 0) {
        close(report[0]);
        become(folder_, report[1]);
    }
    close(report[1]);
    std::string line;
    for (char letter = 0; read(report[0], &letter, 1) == 1 && letter != '\n';) {
        line += letter;
    }
    close(report[0]);
    std::string name;
    if (std::istringstream(line) >> name >> control_) {
        display_ = fs::path(folder_) / name;
    }
}

Sway::~Sway() {
    if (process_ > 0) {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

} // namespace ravelo::live
