#pragma once

#include "platform/AlertSound.h"

namespace ravelo {

/// The sound "complete" of the desktop's sound theme (Sound Naming Specification, by libcanberra),
/// at the desktop's volume. Costs nothing before the first sound. Main thread.
class ThemeSound final : public AlertSound {
public:
    void play() override;
};

} // namespace ravelo
