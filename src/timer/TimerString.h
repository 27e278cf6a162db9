#pragma once

#include "base/Scheduler.h"

#include <QString>

namespace ravelo {

/// "04:09", from an hour on "1:04:09"; fractions of a second are cut off. `time` is not negative.
[[nodiscard]] QString timerString(Seconds time);

} // namespace ravelo
