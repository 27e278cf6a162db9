#include "app/KeyWhileLocked.h"

#include "platform/SessionLock.h"
#include "platform/system/DecoderProcess.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "vault/Encryption.h"

#include <algorithm>
#include <utility>

namespace ravelo {

KeyWhileLocked::KeyWhileLocked(Services services, Reports reports)
    : services_(std::move(services)), reports_(std::move(reports)) {
    for (SessionLock* lock : services_.locks) {
        changes_.push_back(lock->onChange([this] { follow(); }));
    }
    // The key may come, or a conversion end, only after the screen was locked.
    QObject::connect(&services_.encryption, &Encryption::changed, &context_, [this] {
        if (!services_.encryption.isBusy()) {
            forgetIfLocked();
        }
    });
    wasLocked_ = isScreenLocked();
}

bool KeyWhileLocked::isScreenLocked() const {
    return std::ranges::any_of(services_.locks, &SessionLock::isLocked);
}

void KeyWhileLocked::follow() {
    const bool locked = isScreenLocked();
    if (locked == std::exchange(wasLocked_, locked)) {
        return;
    }
    if (!locked) {
        if (const QString& problem = services_.store.lockProblem(); !problem.isEmpty()) {
            reports_.keyStayed(problem);
        }
        reports_.screenUnlocked();
        services_.store.lock({}); // It may still wait for a save.
        services_.encryption.getKey();
    } else {
        forgetIfLocked();
    }
}

void KeyWhileLocked::forgetIfLocked() {
    if (isScreenLocked() && services_.settings.forgetKeyWhileLocked() &&
        services_.encryption.state() == Encryption::Open) {
        services_.store.lock([this] { forget(); });
    }
}

void KeyWhileLocked::forget() {
    services_.encryption.forgetKey();
    if (!services_.encryption.isLocked()) { // It is converting files.
        services_.store.unlock();
    }
    services_.decoder.forgetOwn();
    reports_.forgotten();
}

} // namespace ravelo
