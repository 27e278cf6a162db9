#pragma once

#include "base/Handle.h"

#include <functional>
#include <vector>

namespace ravelo {

class AppSettings;
class DecoderProcess;
class Encryption;
class SessionLock;
class Store;

/// Lets go of the key and the decrypted clips while the screen is locked, if the user wants that,
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

    /// `forgotten`: the key is gone, and so should be what else shows decrypted clips.
    KeyWhileLocked(Services services, std::function<void()> forgotten);

    [[nodiscard]] bool isScreenLocked() const;

    std::function<void()> onScreenUnlock;

private:
    void follow();
    void forget();

    Services services_;
    std::function<void()> forgotten_;
    std::vector<Handle> changes_;
    bool wasLocked_ = false;
};

} // namespace ravelo
