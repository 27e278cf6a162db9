#pragma once

#include <functional>

namespace ravelo {

/// Runs the event loop until `condition` holds; false after twenty seconds.
[[nodiscard]] bool eventually(const std::function<bool()>& condition);

} // namespace ravelo
