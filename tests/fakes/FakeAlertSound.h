#pragma once

#include "platform/AlertSound.h"

namespace ravelo {

class FakeAlertSound final : public AlertSound {
public:
    void play() override { ++plays; }

    int plays = 0;
};

} // namespace ravelo
