#include "ui/usage/Usage.h"

#include "base/Scheduler.h"
#include "monitor/PlanUsage.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"

#include <utility>

namespace ravelo {

Usage::Usage(Services services) : services_(services) {
    connect(&services_.plan, &PlanUsage::changed, this, [this] {
        if (services_.controller.isOpen()) {
            refresh();
        }
    });
    connect(&services_.settings, &AppSettings::hideClaudeCodeChanged, this, &Usage::shownChanged);
    refresh();
}

bool Usage::isShown() const {
    return installed_ || !services_.settings.hideClaudeCode();
}

void Usage::setInstalled(bool installed) {
    if (std::exchange(installed_, installed) != installed) {
        Q_EMIT shownChanged();
    }
}

void Usage::refresh() {
    const Date now = services_.scheduler.now();
    session_ = usageLine(services_.plan.session(), now);
    week_ = usageLine(services_.plan.week(), now);
    Q_EMIT changed();
}

} // namespace ravelo
