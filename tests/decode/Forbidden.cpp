// Locks itself down like ravelo-decode, then does what its argument names.

#include "decode/LockDown.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <thread>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void map(int protection) {
    if (mmap(nullptr, 4096, protection, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED) {
        _exit(EXIT_FAILURE);
    }
}

/// False if the act is unknown.
bool run(std::string_view act) {
    struct stat info = {};
    const sockaddr address{AF_UNIX, "/tmp/x"};
    std::array arguments{const_cast<char*>("/bin/true"), static_cast<char*>(nullptr)};
    if (act == "memory") {
        map(PROT_READ | PROT_WRITE);
    } else if (act == "thread") {
        std::thread([] {}).join();
    } else if (act == "open") {
        (void)open("/etc/hostname", O_RDONLY);
    } else if (act == "create") {
        (void)open("/tmp/ravelo-forbidden", O_WRONLY | O_CREAT, 0600);
    } else if (act == "unlink") {
        (void)unlink("/tmp/ravelo-forbidden");
    } else if (act == "stat") {
        (void)stat("/etc/hostname", &info);
    } else if (act == "socket") {
        (void)socket(AF_INET, SOCK_STREAM, 0);
    } else if (act == "connect") {
        (void)connect(STDERR_FILENO, &address, sizeof(address));
    } else if (act == "exec") {
        (void)execv("/bin/true", arguments.data());
    } else if (act == "fork") {
        (void)fork();
    } else if (act == "kill") {
        (void)kill(getppid(), 0);
    } else if (act == "ptrace") {
        (void)ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    } else if (act == "executable memory") {
        map(PROT_READ | PROT_WRITE | PROT_EXEC);
    } else {
        return act == "nothing";
    }
    return true;
}

} // namespace

int main(int /*count*/, char** arguments) {
    std::thread([] {}).join();
    if (!ravelo::decode::lockDown()) {
        return EXIT_FAILURE;
    }
    _exit(run(arguments[1]) ? EXIT_SUCCESS : EXIT_FAILURE);
}
