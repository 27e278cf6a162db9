#pragma once

#include <thread>

namespace ravelo {

/// Has text drawn as thin as its font means it. Qt thickens the stems of fonts with CFF outlines,
/// such as Inter, and blends them with a gamma correction: right for black on white, far too bold
/// for white on black. To be called before the first text is drawn; main thread.
void keepStemsThin();

/// Reads the fonts' configuration in a thread, which Qt else does when it draws the first text, for
/// as long as all else of a start takes. Once; before the application object.
[[nodiscard]] std::jthread readFontConfiguration();

} // namespace ravelo
