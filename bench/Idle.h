#pragma once

namespace ravelo::bench {

/// Waits until the threads of a process have neither run nor wanted to for a while (but for the
/// odd moment): whatever it had to do, it has done. Ends the program if that does not happen.
void awaitIdle(int process);

} // namespace ravelo::bench
