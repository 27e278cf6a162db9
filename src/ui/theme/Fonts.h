#pragma once

#include <thread>

namespace ravelo {

/// Draws text as thin as the font intends. Qt thickens the stems of CFF fonts such as Inter and
/// applies gamma correction, which is far too bold for white on black. Call before the first text
/// is drawn; main thread.
void keepStemsThin();

/// Loads the font configuration in a thread; Qt would do it at the first text, which takes as long
/// as the rest of the start. Once; before the application object exists.
[[nodiscard]] std::jthread readFontConfiguration();

} // namespace ravelo
