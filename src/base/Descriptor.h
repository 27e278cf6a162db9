#pragma once

#include <utility>

#include <unistd.h>

namespace ravelo {

/// A file descriptor that is closed with its owner; -1 is none.
class Descriptor {
public:
    Descriptor() = default;

    explicit Descriptor(int number) : number_(number) {}

    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    ~Descriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }

    [[nodiscard]] int number() const { return number_; }

    /// For a callee that closes it.
    [[nodiscard]] int release() { return std::exchange(number_, -1); }

    [[nodiscard]] explicit operator bool() const { return number_ >= 0; }

private:
    int number_ = -1;
};

} // namespace ravelo
