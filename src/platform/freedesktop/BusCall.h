#pragma once

#include "base/Handle.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <functional>

namespace ravelo {

/// Calls and hands the answer to `done`: once, later, on the main thread; an error where none came
/// in time or the bus is gone. Never where the handle was dropped. Starts no service.
[[nodiscard]] Handle callBus(const QDBusConnection& bus, QDBusMessage call,
                             std::chrono::milliseconds timeOut,
                             std::function<void(const QDBusMessage&)> done);

} // namespace ravelo
