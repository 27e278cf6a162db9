#include "decode/LockDown.h"

#include "decode/Protocol.h"

#include <cerrno>
#include <cstdint>
#include <memory>

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ravelo::decode {

namespace {

constexpr rlim_t maxMemory = rlim_t{1} << 30; ///< Address space, in bytes.
constexpr rlim_t maxFiles = 64;
constexpr rlim_t maxProcessorSeconds = 60; ///< For its whole life.

bool limit(__rlimit_resource resource, rlim_t value) {
    const rlimit both{value, value};
    return setrlimit(resource, &both) == 0;
}

bool limitResources() {
#if defined(__SANITIZE_ADDRESS__)
    const bool memory = true; // The shadow memory of the sanitizer exceeds any limit.
#else
    const bool memory = limit(RLIMIT_AS, maxMemory);
#endif
    return memory && limit(RLIMIT_CORE, 0) && limit(RLIMIT_NOFILE, maxFiles) &&
           limit(RLIMIT_FSIZE, maxBytes) && limit(RLIMIT_CPU, maxProcessorSeconds);
}

/// From <linux/landlock.h>, whose version may be older than the kernel.
struct LandlockRules {
    uint64_t files;
    uint64_t net;
    uint64_t scopes;
};

/// Forbids everything that this kernel's Landlock can; true also without Landlock.
bool restrictFiles() {
    constexpr unsigned askVersion = 1;
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, askVersion);
    if (version < 1) {
        return true;
    }
    const unsigned rights = version >= 5 ? 16 : version >= 3 ? 15 : version == 2 ? 14 : 13;
    const LandlockRules all{(uint64_t{1} << rights) - 1, version >= 4 ? 3U : 0U,
                            version >= 6 ? 3U : 0U};
    const size_t known = version >= 6 ? sizeof(all) : version >= 4 ? 16 : 8;
    const auto rules = static_cast<int>(syscall(SYS_landlock_create_ruleset, &all, known, 0));
    return rules >= 0 && syscall(SYS_landlock_restrict_self, rules, 0) == 0 && close(rules) == 0;
}

// What a decoder calls. New threads stay in this process, no memory becomes executable, and
// messages go only over open sockets.
constexpr int allowed[] = {
    // Pictures in and out.
    SCMP_SYS(recvmsg), SCMP_SYS(sendmsg), SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(write),
    SCMP_SYS(lseek), SCMP_SYS(close), SCMP_SYS(memfd_create), SCMP_SYS(ftruncate),
    // Memory.
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise),
    // Threads and what they wait for.
    SCMP_SYS(futex), SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity), SCMP_SYS(gettid), SCMP_SYS(getpid), SCMP_SYS(eventfd2),
    SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn), SCMP_SYS(restart_syscall), SCMP_SYS(exit),
    SCMP_SYS(exit_group),
#if defined(__SANITIZE_ADDRESS__)
    // The sanitizers themselves: for threads, and to see whether memory can be read.
    SCMP_SYS(sigaltstack), SCMP_SYS(pipe2),
#endif
    // Time and random numbers.
    SCMP_SYS(clock_gettime), SCMP_SYS(gettimeofday), SCMP_SYS(setitimer), SCMP_SYS(getrandom)};

bool addRules(scmp_filter_ctx filter) {
    const auto allow = [filter](int call, auto... conditions) {
        return seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, sizeof...(conditions),
                                conditions...) == 0;
    };
    // The number of the argument, the comparison, and its operands.
    const scmp_arg_cmp notExecutable{2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0};
    const scmp_arg_cmp thread{0, SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD};
    const scmp_arg_cmp seals{1, SCMP_CMP_EQ, F_ADD_SEALS, 0};
    const scmp_arg_cmp name{0, SCMP_CMP_EQ, PR_SET_NAME, 0};
    for (const int call : allowed) {
        if (!allow(call)) {
            return false;
        }
    }
    return allow(SCMP_SYS(mmap), notExecutable) && allow(SCMP_SYS(mprotect), notExecutable) &&
           allow(SCMP_SYS(clone), thread) && allow(SCMP_SYS(fcntl), seals) &&
           allow(SCMP_SYS(prctl), name) &&
           // A filter cannot see its flags, which are in memory, so clone is used instead.
           seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
}

bool filterCalls() {
    const std::unique_ptr<void, void (*)(scmp_filter_ctx)> filter(
        seccomp_init(SCMP_ACT_KILL_PROCESS), seccomp_release);
    return filter &&
           seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS) == 0 &&
           seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 &&
           addRules(filter.get()) && seccomp_load(filter.get()) == 0;
}

} // namespace

bool lockDown() {
    return prctl(PR_SET_DUMPABLE, 0) == 0 && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           limitResources() && restrictFiles() && filterCalls();
}

} // namespace ravelo::decode
