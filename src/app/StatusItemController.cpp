#include "app/StatusItemController.h"

#include "app/StatusIcon.h"
#include "base/Scheduler.h"
#include "monitor/LiveContext.h"
#include "monitor/StatusText.h"
#include "panel/NotchController.h"
#include "platform/StatusItem.h"
#include "settings/AppSettings.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

StatusItemController::StatusItemController(Services services, const QLocale& locale)
    : services_(std::move(services)), locale_(locale) {
    const auto open = [this] {
        services_.notch.open();
    };
    const auto run = [](const std::function<void()>& callback) {
        if (callback) {
            callback();
        }
    };
    menu_ = {
        {u"Open Ravelo"_s, {}, open},
        {u"Settings…"_s, QKeySequence(Qt::CTRL | Qt::Key_Comma),
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
        {u"Quit Ravelo"_s, QKeySequence(Qt::CTRL | Qt::Key_Q), services_.quit},
    };
    services_.item.show(drawStatusIcon, menu_);
    qGuiApp->installEventFilter(this);
    services_.context.onChange = [this] {
        updateTitle();
    };
    connect(&services_.settings, &AppSettings::hideClaudeCodeChanged, this,
            &StatusItemController::updateTitle);
    updateTitle();
}

StatusItemController::~StatusItemController() {
    services_.context.onChange = nullptr;
}

void StatusItemController::updateTitle() {
    const LiveContext& context = services_.context;
    if (services_.settings.hideClaudeCode() && !context.installed()) {
        services_.item.setToolTip(u"Ravelo"_s);
        return;
    }
    const Date now = services_.scheduler.now();
    const MonitorStatus status{context.model(),        context.used(),    context.limit(),
                               context.lastActivity(), PeakInfo::at(now), {}};
    services_.item.setToolTip(contextLine(status, now, locale_));
}

bool StatusItemController::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !target->isWindowType()) {
        return false;
    }
    const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
    if (pressed.isEmpty()) {
        return false; // Unknown to Qt; it would match every row without a key.
    }
    const auto row = std::ranges::find(menu_, pressed, &StatusItem::Row::keys);
    if (row == menu_.end()) {
        return false;
    }
    row->action();
    return true;
}

} // namespace ravelo
