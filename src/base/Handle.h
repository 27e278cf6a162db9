#pragma once

#include <functional>
#include <utility>

namespace ravelo {

/// What keeps a timer, a subscription or a pending answer alive: destroying or resetting it
/// cancels. Move-only. Belongs to the thread that got it.
class [[nodiscard]] Handle {
public:
    Handle() = default;

    explicit Handle(std::function<void()> cancel) : cancel_(std::move(cancel)) {}

    Handle(Handle&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}

    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) {
            reset();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    ~Handle() { reset(); }

    void reset() {
        if (auto cancel = std::exchange(cancel_, nullptr)) {
            cancel();
        }
    }

    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(cancel_); }

private:
    std::function<void()> cancel_;
};

} // namespace ravelo
