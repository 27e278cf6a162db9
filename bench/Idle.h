#pragma once

namespace ravelo::bench {

/// Waits until the threads of a process have been idle for a while, except for short moments. Ends
/// the program if that does not happen.
void awaitIdle(int process);

} // namespace ravelo::bench
