#pragma once

#include "base/Handle.h"

#include <QObject>

#include <functional>
#include <vector>

namespace ravelo {

class AppSettings;
class DecoderProcess;
class Encryption;
class SessionLock;
class Store;

/// Forgets the key and the decrypted clips while the screen is locked, if the user wants that,
/// and gets the key again afterwards. Main thread.
class KeyWhileLocked {
public:
    struct Services {
        const AppSettings& settings;
        Store& store;
        Encryption& encryption;
        DecoderProcess& decoder;
        std::vector<SessionLock*> locks;
    };

    struct Reports {
        std::function<void()> forgotten; ///< What else shows decrypted clips has to go, too.
        /// The key stayed in memory behind the lock screen, since saving failed for this reason.
        std::function<void(const QString&)> keyStayed;
        std::function<void()> screenUnlocked;
    };

    KeyWhileLocked(Services services, Reports reports);

    [[nodiscard]] bool isScreenLocked() const;

private:
    void follow();
    void forgetIfLocked();
    void forget();

    Services services_;
    Reports reports_;
    std::vector<Handle> changes_;
    QObject context_; ///< For the signals of `encryption`.
    bool wasLocked_ = false;
};

} // namespace ravelo
