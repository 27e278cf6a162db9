// Locks itself down as ravelo-decode does, and then does what its argument names.

#include "decode/LockDown.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Act {
    const char* name;
    void (*run)();
};

void map(int protection) {
    if (mmap(nullptr, 4096, protection, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED) {
        _exit(EXIT_FAILURE);
    }
}

constexpr std::array acts{
    Act{"nothing",
        [] {
        }},
    Act{"memory",
        [] {
            map(PROT_READ | PROT_WRITE);
        }},
    Act{"thread",
        [] {
            std::thread([] {}).join();
        }},
    Act{"open",
        [] {
            (void)open("/etc/hostname", O_RDONLY);
        }},
    Act{"create",
        [] {
            (void)open("/tmp/ravelo-forbidden", O_WRONLY | O_CREAT, 0600);
        }},
    Act{"unlink",
        [] {
            (void)unlink("/tmp/ravelo-forbidden");
        }},
    Act{"stat",
        [] {
            struct stat info = {};
            (void)stat("/etc/hostname", &info);
        }},
    Act{"socket",
        [] {
            (void)socket(AF_INET, SOCK_STREAM, 0);
        }},
    Act{"connect",
        [] {
            const sockaddr address{AF_UNIX, "/tmp/x"};
            (void)connect(STDERR_FILENO, &address, sizeof(address));
        }},
    Act{"exec",
        [] {
            std::array arguments{const_cast<char*>("/bin/true"), static_cast<char*>(nullptr)};
            (void)execv("/bin/true", arguments.data());
        }},
    Act{"fork",
        [] {
            (void)fork();
        }},
    Act{"kill",
        [] {
            (void)kill(getppid(), 0);
        }},
    Act{"ptrace",
        [] {
            (void)ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        }},
    Act{"executable memory",
        [] {
            map(PROT_READ | PROT_WRITE | PROT_EXEC);
        }},
};

} // namespace

int main(int /*count*/, char** arguments) {
    std::thread([] {}).join();
    if (!ravelo::decode::lockDown()) {
        return EXIT_FAILURE;
    }
    for (const Act& act : acts) {
        if (std::strcmp(act.name, arguments[1]) == 0) {
            act.run();
            _exit(EXIT_SUCCESS);
        }
    }
    _exit(EXIT_FAILURE);
}
