#pragma once

#include <functional>
#include <utility>

namespace ravelo {

/// Owns a timer, a subscription or a pending answer: destroying or resetting it cancels. Move-only;
/// for the thread that got it.
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
