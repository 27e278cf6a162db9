#pragma once

namespace ravelo {

/// Takes relative paths out of this process's XDG variables: the XDG Base Directory Specification
/// 0.8 has them ignored, but Qt follows them to wherever the program was started. Before anything
/// asks for a folder.
void ignoreRelativeXdgPaths();

} // namespace ravelo
