#pragma once

namespace ravelo {

/// Makes the QML modules of all folders known, before the first file is loaded. Made by the build:
/// the linker would leave out what nobody names.
void registerModules();

} // namespace ravelo
