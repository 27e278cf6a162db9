#pragma once

#include "base/Listeners.h"
#include "platform/x11/connection/Listener.h"

#include <atomic>
#include <memory>

namespace ravelo::x11 {

/// Passes notifications from the listener's thread to callbacks on the main
/// thread. Events that the main thread has not seen yet become one call: a client that makes a
/// million changes cannot fill our queue.
class MainThreadNotifier : public std::enable_shared_from_this<MainThreadNotifier> {
public:
    explicit MainThreadNotifier(Listener& listener) : listener_(listener) {}

    /// Main thread.
    [[nodiscard]] Handle add(std::function<void()> callback) {
        return callbacks_.add(std::move(callback));
    }

    /// Any thread.
    void notify() {
        if (!pending_.exchange(true)) {
            listener_.callOnMain([self = shared_from_this()] {
                self->pending_ = false;
                self->callbacks_.notify();
            });
        }
    }

private:
    Listener& listener_;
    std::atomic<bool> pending_ = false;
    Listeners<> callbacks_;
};

} // namespace ravelo::x11
