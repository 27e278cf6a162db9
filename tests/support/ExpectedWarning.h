#pragma once

#include <QString>

namespace ravelo {

/// While it lives, the warning `text` (the whole line) does not fail the test; at its end the test
/// fails unless that warning was logged exactly once. One at a time.
class ExpectedWarning {
public:
    explicit ExpectedWarning(QString text);
    ~ExpectedWarning();

    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;

    /// Whether this warning is expected. For the message handler, on any thread.
    [[nodiscard]] static bool takes(const QString& text);
};

} // namespace ravelo
