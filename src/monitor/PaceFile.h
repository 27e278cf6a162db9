#pragma once

#include "base/Result.h"
#include "monitor/PlanPace.h"

// The file "~/.cache/ravelo/pace.json": the plan's recent figures. Both block; any thread.

namespace ravelo {

/// Empty if the file is missing or malformed.
[[nodiscard]] PlanCourse loadCourse(const QByteArray& home);

[[nodiscard]] Result<void> storeCourse(const QByteArray& home, const PlanCourse& course);

} // namespace ravelo
