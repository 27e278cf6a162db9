#pragma once

namespace ravelo::decode {

/// From now on this process can only use memory and its open descriptors; it cannot open files,
/// make connections or start programs and processes. An attempt kills it. If this returns false,
/// nothing must be read.
[[nodiscard]] bool lockDown();

} // namespace ravelo::decode
