#pragma once

#include "platform/AlertSound.h"
#include "platform/LoginItem.h"
#include "platform/NightShift.h"
#include "platform/ShutDown.h"

namespace ravelo {

class FakeAlertSound final : public AlertSound {
public:
    void play() override { ++plays; }

    int plays = 0;
};

class FakeNightShift final : public NightShift {
public:
    void start() override { ++starts; }

    int starts = 0;
};

class FakeShutDown final : public ShutDown {
public:
    void request() override { ++requests; }

    int requests = 0;
};

class FakeLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return enabled; }

    [[nodiscard]] Result<void> setEnabled(bool on) override {
        if (refuses) {
            return failure(QStringLiteral("refused"));
        }
        enabled = on;
        return {};
    }

    bool enabled = false;
    bool refuses = false;
};

} // namespace ravelo
