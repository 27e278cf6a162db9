#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace ravelo {

/// The way back to the main thread for threads that may outlive all else: they share it, and once
/// it is closed nothing comes through any more.
class MainThread {
public:
    /// Runs `news` on the main thread. Any thread.
    void tell(std::function<void()> news) {
        const std::scoped_lock lock(mutex_);
        if (context_) {
            QMetaObject::invokeMethod(context_.get(), std::move(news), Qt::QueuedConnection);
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
