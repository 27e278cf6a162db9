#pragma once

#include "platform/NightShift.h"
#include "platform/ShutDown.h"

namespace ravelo {

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

} // namespace ravelo
