#pragma once

#include "base/Handle.h"
#include "base/Secret.h"

#include <QString>

#include <functional>
#include <optional>

namespace ravelo {

/// The desktop's password store. Main thread.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// Looks up the password for `service` and calls `done` once, later, with nothing if there is
    /// none, it is locked or no answer comes in time; not called if the handle was dropped. Never
    /// unlocks anything or shows a prompt.
    [[nodiscard]] virtual Handle find(const QString& service,
                                      std::function<void(std::optional<Secret>)> done) = 0;
};

} // namespace ravelo
