#pragma once

#include "base/Handle.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <functional>

namespace ravelo {

enum class Activation { none, allowed };

/// Calls and hands the answer to `done`: once, later, on the main thread; an error where none came
/// in time or the bus is gone. Never where the handle was dropped. Starts no service unless
/// allowed to.
[[nodiscard]] Handle callBus(const QDBusConnection& bus, QDBusMessage call,
                             std::chrono::milliseconds timeOut,
                             std::function<void(const QDBusMessage&)> done,
                             Activation activation = Activation::none);

} // namespace ravelo
