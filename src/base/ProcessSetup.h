#pragma once

#include "base/Handle.h"

#include <initializer_list>

namespace ravelo {

// What every display server sets before the application object exists.

/// Dropping the handle sets these environment variables again as they are now.
[[nodiscard]] Handle keptVariables(std::initializer_list<const char*> names);

/// Otherwise Qt waits 5 ms before it draws a frame.
void drawAtOnce();

/// Keeps the memory that frames are drawn in, and one heap for all threads.
void keepFreedMemory();

} // namespace ravelo
