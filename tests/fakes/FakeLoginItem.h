#pragma once

#include "platform/LoginItem.h"

namespace ravelo {

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
