#include "ui/usage/Usage.h"

#include "base/Scheduler.h"
#include "monitor/PlanUsage.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"

#include <algorithm>
#include <utility>

namespace ravelo {

Usage::Usage(Services services, const QLocale& locale) : services_(services), relative_(locale) {
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
    session_ = usageLine(pacedSession(), now);
    week_ = usageLine(pacedWeek(), now);
    Q_EMIT changed();
    awaitNextText();
}

PacedWindow Usage::pacedSession() const {
    return {services_.plan.session(), services_.plan.pace().session, sessionKind};
}

PacedWindow Usage::pacedWeek() const {
    return {services_.plan.week(), services_.plan.pace().week, weekKind};
}

QStringList Usage::notes(const PacedWindow& paced) const {
    const Date now = services_.scheduler.now();
    QStringList notes = paceNotes(paced, now);
    if (const auto& at = services_.plan.figuresAt(); at && paced.window) {
        notes << tr("read %1").arg(relative_.text(*at, now));
    }
    if (!second_.isEmpty()) {
        notes << second_;
    }
    return notes;
}

QStringList Usage::sessionNotes() const {
    return notes(pacedSession());
}

QStringList Usage::weekNotes() const {
    return notes(pacedWeek());
}

} // namespace ravelo
