#pragma once

#include <chrono>

namespace ravelo::bench {

/// Tells whether a program has hardly run for a while.
class Idleness {
public:
    /// How long to wait between two questions.
    static constexpr std::chrono::milliseconds window{150};

    explicit Idleness(int process);

    /// Since the last question.
    [[nodiscard]] bool isIdle();

private:
    int process_;
    std::chrono::nanoseconds busy_; ///< Until the last question.
};

/// Waits until the program hardly runs any more, max. 30 s.
void awaitIdle(int process);

} // namespace ravelo::bench
