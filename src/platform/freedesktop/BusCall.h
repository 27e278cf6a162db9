#pragma once

#include "base/Handle.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <functional>

namespace ravelo {

enum class Activation { none, allowed };

/// Calls `done` once, later, on the main thread, with the answer, or with an error if none came in
/// time or the bus is gone; not after the handle was dropped. Starts no service unless allowed.
[[nodiscard]] Handle callBus(const QDBusConnection& bus, QDBusMessage call,
                             std::chrono::milliseconds timeOut,
                             std::function<void(const QDBusMessage&)> done,
                             Activation activation = Activation::none);

/// The unique name of the service's owner; empty if it has none. (Answers do not say it: since
/// Qt 6.8 their `service()` is empty.) As `callBus`.
[[nodiscard]] Handle findOwner(const QDBusConnection& bus, const QString& service,
                               std::chrono::milliseconds timeOut,
                               std::function<void(const QString& owner)> done);

} // namespace ravelo
