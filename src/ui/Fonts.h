#pragma once

namespace ravelo {

/// Has text drawn as thin as its font means it. Qt thickens the stems of fonts with CFF outlines,
/// such as Inter, and blends them with a gamma correction: right for black on white, far too bold
/// for white on black. To be called before the first text is drawn; main thread.
void keepStemsThin();

} // namespace ravelo
