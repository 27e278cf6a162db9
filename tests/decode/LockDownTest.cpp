#include <gtest/gtest.h>

#include <array>
#include <csignal>

#include <spawn.h>
#include <sys/wait.h>

namespace ravelo {

namespace {

/// The status, see waitpid(2), of a process that did it.
int endOf(const char* act) {
    std::array arguments{const_cast<char*>(DECODE_FORBIDDEN), const_cast<char*>(act),
                         static_cast<char*>(nullptr)};
    pid_t child = 0;
    int status = -1;
    EXPECT_EQ(posix_spawn(&child, DECODE_FORBIDDEN, nullptr, nullptr, arguments.data(), nullptr),
              0);
    waitpid(child, &status, 0);
    return status;
}

TEST(LockDown, KillsAProcessThatDoesAnythingElse) {
    for (const char* const act : {"open", "create", "unlink", "stat", "socket", "connect", "exec",
                                  "fork", "kill", "ptrace", "executable memory"}) {
        const int end = endOf(act);
        EXPECT_TRUE(WIFSIGNALED(end) && WTERMSIG(end) == SIGSYS) << act << ": status " << end;
    }
}

TEST(LockDown, AllowsMemoryAndThreads) {
    for (const char* const act : {"nothing", "memory", "thread"}) {
        EXPECT_EQ(endOf(act), 0) << act;
    }
}

} // namespace

} // namespace ravelo
