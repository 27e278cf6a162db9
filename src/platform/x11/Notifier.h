#pragma once

#include "base/Listeners.h"
#include "platform/x11/Listener.h"

#include <atomic>
#include <memory>

namespace ravelo::x11 {

/// Carries the word that something happened from the listener's thread to callbacks on the main
/// thread. What happens before the main thread comes to it is told once: a client that makes a
/// million changes cannot fill our queue.
class Notifier : public std::enable_shared_from_this<Notifier> {
public:
    explicit Notifier(Listener& listener) : listener_(listener) {}

    /// Main thread.
    [[nodiscard]] Handle add(std::function<void()> callback) {
        return callbacks_.add(std::move(callback));
    }

    /// Any thread.
    void notify() {
        if (!told_.exchange(true)) {
            listener_.tell([self = shared_from_this()] {
                self->told_ = false;
                self->callbacks_.notify();
            });
        }
    }

private:
    Listener& listener_;
    std::atomic<bool> told_ = false;
    Listeners<> callbacks_;
};

} // namespace ravelo::x11
