#pragma once

#include "platform/Answer.h"

namespace ravelo {

/// Erases everything while no Ravelo runs: the data, the preferences, and the key in the keyring.
/// Answers once that is on the disk. Needs an application object; blocks.
[[nodiscard]] Answer eraseEverything();

} // namespace ravelo
