#pragma once

#include "Stage.h"

namespace ravelo {

/// Prints what `count` closings and openings cost.
void timeOpenings(int count, PanelWorld& world, PanelView& view);

} // namespace ravelo
