#pragma once

namespace ravelo::decode {

/// From now on this process can use the memory it may still get and the descriptors it has, and can
/// do nothing else: no file, no address, no program and no process can be opened or started. What
/// it tries nevertheless kills it. False if that could not be had: then nothing must be read.
[[nodiscard]] bool lockDown();

} // namespace ravelo::decode
