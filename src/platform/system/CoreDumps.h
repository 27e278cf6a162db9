#pragma once

namespace ravelo {

/// Keeps this process's memory, and with it everything copied, out of core dumps and away from
/// other programs of the same user (prctl(2)). Programs started from here are not affected. For
/// debugging, RAVELO_CORE_DUMPS=1 in the environment allows dumps.
void forbidCoreDumps();

} // namespace ravelo
