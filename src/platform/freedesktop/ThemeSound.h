#pragma once

#include "platform/AlertSound.h"

namespace ravelo {

/// The sound "complete" of the desktop's sound theme, as loud as the desktop plays such sounds
/// (freedesktop.org Sound Naming Specification, by libcanberra). Costs nothing before the first
/// sound. Main thread.
class ThemeSound final : public AlertSound {
public:
    void play() override;
};

} // namespace ravelo
