#pragma once

#include "fakes/PanelWorld.h"
#include "ui/PanelFeatures.h"

namespace ravelo {

/// The services of a panel in this world.
inline PanelFeatures::Services services(PanelWorld& world, PlanUsage& usage) {
    return {world.store,       world.settings,   world.pause,      world.controller,
            world.clipboard,   world.notices,    world.pasteboard, world.scheduler,
            world.preferences, world.nightShift, world.shutDown,   usage,
            world.received,    world.nearby,     world.jobs,       world.opener,
            world.icons,       world.decoder,    nullptr,          &world.pasting};
}

} // namespace ravelo
