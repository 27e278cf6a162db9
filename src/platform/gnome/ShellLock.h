#pragma once

#include "base/Listeners.h"
#include "platform/SessionLock.h"
#include "platform/gnome/Channel.h"

#include <utility>

namespace ravelo::gnome {

/// The extension says so before it hangs up, and is back when the screen is unlocked.
class ShellLock final : public SessionLock {
public:
    explicit ShellLock(Channel& channel)
        : deliveries_(channel.onDelivery([this](Delivery& delivery) {
              if (std::holds_alternative<Locked>(delivery.report)) {
                  set(true);
              }
          })),
          ups_(channel.onUpChange([this, &channel] {
              if (channel.isUp()) {
                  set(false);
              }
          })) {}

    [[nodiscard]] bool isLocked() const override { return locked_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

private:
    void set(bool locked) {
        if (std::exchange(locked_, locked) != locked) {
            changes_.notify();
        }
    }

    bool locked_ = false;
    Listeners<> changes_;
    Handle deliveries_;
    Handle ups_;
};

} // namespace ravelo::gnome
