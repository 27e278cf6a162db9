#pragma once

#include "base/SignalsBlocked.h"
#include "platform/gnome/Transfers.h"

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

namespace ravelo::gnome {

/// A thread that fetches contents and reports them to the main thread, unless it is destroyed
/// before. Its end is waited for, which takes no longer than what it computes itself.
class Reading {
public:
    /// `work` runs on the thread and returns what to do next on the main thread, in the context of
    /// `owner`.
    using Work = std::function<std::function<void()>(const Cancellation&)>;

    Reading(QObject& owner, Work work) {
        const SignalsBlocked blocked;
        thread_ = std::thread([&owner, cancellation = cancellation_, alive = alive_,
                               finished = finished_, work = std::move(work)] {
            auto done = work(*cancellation);
            *finished = true;
            QMetaObject::invokeMethod(
                &owner,
                [alive = std::weak_ptr(alive), done = std::move(done)] {
                    if (alive.lock()) {
                        done();
                    }
                },
                Qt::QueuedConnection);
        });
    }

    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    ~Reading() {
        alive_.reset();
        cancellation_->cancel();
        thread_.join();
    }

    /// What to do next is on its way to the main thread.
    [[nodiscard]] bool isFinished() const { return *finished_; }

private:
    std::shared_ptr<std::atomic<bool>> finished_ = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<Cancellation> cancellation_ = std::make_shared<Cancellation>();
    std::shared_ptr<int> alive_ = std::make_shared<int>();
    std::thread thread_;
};

} // namespace ravelo::gnome
