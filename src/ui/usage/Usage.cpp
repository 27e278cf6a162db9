#include "ui/usage/Usage.h"

#include "base/Scheduler.h"
#include "monitor/PlanUsage.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"

#include <algorithm>
#include <utility>

namespace ravelo {

Usage::Usage(Services services) : services_(services) {
    connect(&services_.plan, &PlanUsage::changed, this, &Usage::refreshIfOpen);
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

void Usage::refreshIfOpen() {
    if (services_.controller.isOpen()) {
        refresh();
    }
}

void Usage::awaitNextText() {
    constexpr Seconds margin(0.001); // Rounding must not put the update before the change.
    const Date now = services_.scheduler.now();
    const Seconds next = std::min(untilTextChanges(services_.plan.session(), now),
                                  untilTextChanges(services_.plan.week(), now));
    nextText_ = next == Seconds::max()
                    ? Handle()
                    : services_.scheduler.after(next + margin, [this] { refreshIfOpen(); });
}

void Usage::refresh() {
    const Date now = services_.scheduler.now();
    session_ = usageLine(services_.plan.session(), now);
    week_ = usageLine(services_.plan.week(), now);
    Q_EMIT changed();
    awaitNextText();
}

} // namespace ravelo
