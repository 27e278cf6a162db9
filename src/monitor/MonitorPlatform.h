#pragma once

#include <functional>
#include <memory>

namespace ravelo {

class LiveContext;
class PlanUsage;

/// How the process's monitors are made, from its platform.
struct MonitorPlatform {
    std::function<std::unique_ptr<LiveContext>()> makeLiveContext;
    std::function<std::unique_ptr<PlanUsage>()> makePlanUsage;
};

/// Once, before the first use of a monitor; whatever they are made from stays as long as they are
/// used. Main thread.
void setMonitorPlatform(MonitorPlatform platform);

[[nodiscard]] const MonitorPlatform& monitorPlatform();

} // namespace ravelo
