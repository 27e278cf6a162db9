#pragma once

#include "base/Handle.h"
#include "base/Result.h"
#include "base/Secret.h"

#include <QString>

#include <functional>

namespace ravelo {

/// The desktop's password store, as the place of a key of our own. Every call answers once, later,
/// on the main thread, unless its handle was dropped. Main thread.
class Keyring {
public:
    virtual ~Keyring() = default;

    struct Found {
        enum class Kind {
            found,
            missing,
            locked,
            unavailable ///< None answers.
        };

        Kind kind = Kind::unavailable;
        Secret secret = {};
    };

    /// Shows no prompt.
    [[nodiscard]] virtual Handle find(const QString& service,
                                      std::function<void(const Found&)> done) = 0;

    /// Stores a secret, in place of an earlier one for `service`. May show the keyring's prompts.
    [[nodiscard]] virtual Handle keep(const QString& service, const QString& label,
                                      const Secret& secret,
                                      std::function<void(const Result<void>&)> done) = 0;

    /// Removes the secret, if there is one.
    [[nodiscard]] virtual Handle remove(const QString& service,
                                        std::function<void(const Result<void>&)> done) = 0;

    /// Shows the keyring's prompt, if it is locked, and waits until the user has answered it.
    [[nodiscard]] virtual Handle unlock(std::function<void()> done) = 0;

    /// Whether there is a keyring, running or to be started.
    [[nodiscard]] virtual Handle look(std::function<void(bool)> done) = 0;

    /// It may have been locked or unlocked, have started or ended.
    [[nodiscard]] virtual Handle onChange(std::function<void()> callback) = 0;
};

} // namespace ravelo
