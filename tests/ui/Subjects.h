#pragma once

#include "fakes/PanelWorld.h"
#include "ui/PanelHost.h"

namespace ravelo {

/// A panel of this world.
inline PanelHost::Subjects subjects(PanelWorld& world, PlanUsage& usage) {
    return {world.store,      world.settings,  world.controller,  world.notices,
            world.pasteboard, world.scheduler, world.preferences, world.nightShift,
            world.shutDown,   usage,           world.received,    world.nearby,
            world.jobs,       world.opener,    world.icons,       world.decoder};
}

} // namespace ravelo
