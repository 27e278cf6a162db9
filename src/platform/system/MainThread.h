#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace ravelo {

/// Calls functions on the main thread, for threads that may outlive everything else. After `close`
/// it calls nothing.
class MainThread {
public:
    /// Runs `call` on the main thread. Any thread.
    void post(std::function<void()> call) {
        const std::scoped_lock lock(mutex_);
        if (context_) {
            QMetaObject::invokeMethod(context_.get(), std::move(call), Qt::QueuedConnection);
        }
    }

    /// Main thread.
    void close() {
        const std::scoped_lock lock(mutex_);
        context_.reset();
    }

private:
    std::mutex mutex_;
    std::unique_ptr<QObject> context_ = std::make_unique<QObject>();
};

} // namespace ravelo
