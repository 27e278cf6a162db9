#include <gtest/gtest.h>

#include <array>
#include <csignal>

#include <spawn.h>
#include <sys/wait.h>

namespace ravelo {

namespace {

/// How the process ended that did it: as waitpid(2) says.
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

class Forbidden : public testing::TestWithParam<const char*> {};

TEST_P(Forbidden, ActEndsTheProcess) {
    const int end = endOf(GetParam());
    EXPECT_TRUE(WIFSIGNALED(end) && WTERMSIG(end) == SIGSYS) << "it ended with status " << end;
}

INSTANTIATE_TEST_SUITE_P(LockDown, Forbidden,
                         testing::Values("open", "create", "unlink", "stat", "socket", "connect",
                                         "exec", "fork", "kill", "ptrace", "executable memory"));

TEST(LockDown, AllowsMemoryAndThreads) {
    for (const char* const act : {"nothing", "memory", "thread"}) {
        EXPECT_EQ(endOf(act), 0) << act;
    }
}

} // namespace

} // namespace ravelo
