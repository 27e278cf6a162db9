#include "platform/system/DetachedThreads.h"

#include "base/SignalsBlocked.h"

#include <system_error>
#include <thread>
#include <utility>

namespace ravelo {

Handle DetachedThreads::run(std::function<void()> job, std::function<void()> done) {
    const auto end =
        std::make_shared<std::function<void()>>(std::move(done)); // For the main thread only.
    const auto finish = [end, mainThread = mainThread_] {
        mainThread->post([end] {
            if (const auto call = std::exchange(*end, nullptr)) {
                call();
            }
        });
    };
    if (*running_ >= max_) {
        finish();
    } else {
        ++*running_;
        const SignalsBlocked blocked;
        try {
            std::thread([job = std::move(job), finish, running = running_]() mutable {
                job();
                job = nullptr;
                --*running;
                finish();
            }).detach();
        } catch (const std::system_error&) { // The thread limit is reached.
            --*running_;
            finish();
        }
    }
    return Handle([end] { *end = nullptr; });
}

} // namespace ravelo
