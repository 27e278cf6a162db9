#include "monitor/MonitorPlatform.h"

#include <utility>

namespace ravelo {

namespace {

MonitorPlatform& platform() {
    static MonitorPlatform platform;
    return platform;
}

} // namespace

void setMonitorPlatform(MonitorPlatform made) {
    platform() = std::move(made);
}

const MonitorPlatform& monitorPlatform() {
    return platform();
}

} // namespace ravelo
