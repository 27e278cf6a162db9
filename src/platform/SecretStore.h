#pragma once

#include "base/Handle.h"
#include "base/Secret.h"

#include <QString>

#include <functional>
#include <optional>

namespace ravelo {

/// The passwords that the desktop keeps for the user. Main thread.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// Looks for the password that is kept for `service` and calls `done` once, later, with nothing
    /// where there is none, where it is locked or where no answer comes soon; not where the handle
    /// was dropped. Unlocks nothing and never makes a question appear.
    [[nodiscard]] virtual Handle find(const QString& service,
                                      std::function<void(std::optional<Secret>)> done) = 0;
};

} // namespace ravelo
