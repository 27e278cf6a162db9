#include "ui/panel/PanelActions.h"

#include "platform/NightShift.h"
#include "platform/ShutDown.h"

namespace ravelo {

void PanelActions::startNightShift() {
    nightShift_.start();
}

void PanelActions::shutDown() {
    shutDown_.request();
}

} // namespace ravelo
