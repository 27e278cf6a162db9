#include "platform/system/DetachedThreads.h"

#include "base/SignalsBlocked.h"

#include <thread>
#include <utility>

namespace ravelo {

namespace {

constexpr int mostThreads = 16;

} // namespace

Handle DetachedThreads::run(std::function<void()> job, std::function<void()> done) {
    if (*running_ >= mostThreads) {
        return {};
    }
    ++*running_;
    const auto end = std::make_shared<std::function<void()>>(std::move(done)); // Main thread's.
    const SignalsBlocked blocked;
    std::thread([job = std::move(job), end, running = running_,
                 mainThread = mainThread_]() mutable {
        job();
        job = nullptr;
        --*running;
        mainThread->tell([end] {
            if (const auto call = std::exchange(*end, nullptr)) {
                call();
            }
        });
    }).detach();
    return Handle([end] { *end = nullptr; });
}

} // namespace ravelo
