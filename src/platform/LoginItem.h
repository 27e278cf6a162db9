#pragma once

#include "base/Result.h"

namespace ravelo {

/// Whether the desktop starts this program when the user logs in. Main thread.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;
    [[nodiscard]] virtual Result<void> setEnabled(bool enabled) = 0;
};

} // namespace ravelo
