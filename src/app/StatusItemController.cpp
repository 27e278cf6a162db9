#include "app/StatusItemController.h"

#include "app/StatusIcon.h"
#include "base/Scheduler.h"
#include "monitor/LiveContext.h"
#include "monitor/StatusText.h"
#include "panel/NotchController.h"
#include "platform/StatusItem.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

StatusItemController::StatusItemController(Services services, const QLocale& locale)
    : services_(std::move(services)), locale_(locale) {
    const auto open = [this] {
        services_.notch.positionExpanded();
    };
    const auto run = [](const std::function<void()>& callback) {
        if (callback) {
            callback();
        }
    };
    const QKeySequence settingsKeys(Qt::CTRL | Qt::Key_Comma);
    const QKeySequence quitKeys(Qt::CTRL | Qt::Key_Q);
    services_.item.show(drawStatusIcon, {
                                            {u"Open Ravelo"_s, {}, open},
                                            {u"Settings…"_s, settingsKeys,
                                             [=, this] {
                                                 run(onSettings);
                                             }},
                                            {u"Set Up Ravelo Again…"_s,
                                             {},
                                             [=, this] {
                                                 run(onSetup);
                                             }},
                                            {u"Check for Updates…"_s, {}, services_.checkUpdates},
                                            {},
                                            {u"Quit Ravelo"_s, quitKeys, services_.quit},
                                        });
    services_.context.onChange = [this] {
        updateTitle();
    };
    updateTitle();
}

StatusItemController::~StatusItemController() {
    services_.context.onChange = nullptr;
}

void StatusItemController::updateTitle() {
    const LiveContext& context = services_.context;
    const Date now = services_.scheduler.now();
    const MonitorStatus status{context.model(),        context.used(),    context.limit(),
                               context.lastActivity(), PeakInfo::at(now), {}};
    services_.item.setToolTip(contextLine(status, now, locale_));
}

} // namespace ravelo
