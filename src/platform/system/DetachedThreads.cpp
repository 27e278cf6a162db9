#include "platform/system/DetachedThreads.h"

#include "base/SignalsBlocked.h"

#include <thread>
#include <utility>

namespace ravelo {

namespace {

constexpr int mostThreads = 16;

} // namespace

Handle DetachedThreads::run(std::function<void()> job, std::function<void()> done) {
    const auto end = std::make_shared<std::function<void()>>(std::move(done)); // Main thread's.
    const auto tell = [end, mainThread = mainThread_] {
        mainThread->tell([end] {
            if (const auto call = std::exchange(*end, nullptr)) {
                call();
            }
        });
    };
    if (*running_ >= mostThreads) {
        tell();
    } else {
        ++*running_;
        const SignalsBlocked blocked;
        std::thread([job = std::move(job), tell, running = running_]() mutable {
            job();
            job = nullptr;
            --*running;
            tell();
        }).detach();
    }
    return Handle([end] { *end = nullptr; });
}

} // namespace ravelo
