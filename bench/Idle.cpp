#include "bench/Idle.h"

#include "bench/XServer.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <utility>

namespace ravelo::bench {

namespace {

using namespace std::chrono_literals;

constexpr auto oddMoment = 2ms;
constexpr auto timeout = 30s;

/// How long its threads have run or waited for a CPU so far.
std::chrono::nanoseconds busy(int process) {
    long long sum = 0;
    const auto threads = "/proc/" + std::to_string(process) + "/task";
    for (const auto& thread : std::filesystem::directory_iterator(threads)) {
        std::ifstream file(thread.path() / "schedstat");
        long long ran = 0;
        long long queued = 0;
        file >> ran >> queued;
        sum += ran + queued;
    }
    return std::chrono::nanoseconds(sum);
}

} // namespace

Idleness::Idleness(int process) : process_(process), busy_(busy(process)) {}

bool Idleness::isIdle() {
    const auto before = std::exchange(busy_, busy(process_));
    return busy_ - before < oddMoment;
}

void awaitIdle(int process) {
    const auto deadline = Clock::now() + timeout;
    Idleness idleness(process);
    while (Clock::now() < deadline) {
        std::this_thread::sleep_for(Idleness::window);
        if (idleness.isIdle()) {
            return;
        }
    }
    giveUp("the program does not come to rest");
}

} // namespace ravelo::bench
