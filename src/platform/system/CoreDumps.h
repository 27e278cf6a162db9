#pragma once

namespace ravelo {

/// Keeps this process's memory, and what was copied with it, out of core dumps and away from other
/// programs of the same user that would read or trace it. Programs started from here are not meant.
/// RAVELO_CORE_DUMPS=1 in the environment keeps dumps, for who looks for a crash. (prctl(2))
void forbidCoreDumps();

} // namespace ravelo
