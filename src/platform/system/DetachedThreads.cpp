#include "platform/system/DetachedThreads.h"

#include "base/SignalsBlocked.h"

#include <system_error>
#include <thread>
#include <utility>

namespace ravelo {

Handle DetachedThreads::run(std::function<void()> job, std::function<void()> done) {
    const auto end = std::make_shared<std::function<void()>>(std::move(done)); // Main thread's.
    const auto tell = [end, mainThread = mainThread_] {
        mainThread->tell([end] {
            if (const auto call = std::exchange(*end, nullptr)) {
                call();
            }
        });
    };
    if (*running_ >= max_) {
        tell();
    } else {
        ++*running_;
        const SignalsBlocked blocked;
        try {
            std::thread([job = std::move(job), tell, running = running_]() mutable {
                job();
                job = nullptr;
                --*running;
                tell();
            }).detach();
        } catch (const std::system_error&) { // This user may have no more threads now.
            --*running_;
            tell();
        }
    }
    return Handle([end] { *end = nullptr; });
}

} // namespace ravelo
