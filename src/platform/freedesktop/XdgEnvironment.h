#pragma once

namespace ravelo {

/// Removes relative paths from this process's XDG variables: according to the XDG Base Directory
/// Specification 0.8 they are to be ignored, but Qt uses them. Call before using any folder.
void ignoreRelativeXdgPaths();

} // namespace ravelo
