#pragma once

#include "base/Listeners.h"
#include "platform/DesktopExtension.h"

namespace ravelo {

/// One that was installed after the login.
class FakeDesktopExtension final : public DesktopExtension {
public:
    [[nodiscard]] State state() const override { return state_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    void turnOn() override {
        ++requests;
        change(State::waitsForLogin);
    }

    void change(State state) {
        state_ = state;
        listeners_.notify();
    }

    int requests = 0;

private:
    State state_ = State::off;
    Listeners<> listeners_;
};

} // namespace ravelo
