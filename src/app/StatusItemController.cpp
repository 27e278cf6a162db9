#include "app/StatusItemController.h"

#include "app/SecondPlan.h"
#include "app/StatusIcon.h"
#include "base/Scheduler.h"
#include "clipboard/CapturePause.h"
#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"
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
    menu_ = ownRows() + pauseRows();
    services_.item.show(icon(), menu_);
    qGuiApp->installEventFilter(this);
    services_.context.onChange = [this] {
        updateTitle();
    };
    for (const auto changed :
         {&AppSettings::hideClaudeCodeChanged, &AppSettings::showPeakHoursChanged,
          &AppSettings::handedOverFirstChanged}) {
        connect(&services_.settings, changed, this, &StatusItemController::updateTitle);
    }
    connect(&services_.plan, &PlanUsage::changed, this, &StatusItemController::updateTitle);
    connect(&services_.second, &SecondPlan::changed, this, &StatusItemController::updateTitle);
    // Later: the menu is replaced, perhaps while one of its rows is running.
    connect(&services_.pause, &CapturePause::changed, this, &StatusItemController::followPause,
            Qt::QueuedConnection);
    updateTitle();
}

QList<StatusItem::Row> StatusItemController::ownRows() {
    const auto open = [this] {
        services_.notch.open();
    };
    const auto run = [](const std::function<void()>& callback) {
        if (callback) {
            callback();
        }
    };
    return {
        {tr("Open Ravelo"), {}, open},
        {tr("Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
         [=, this] {
             run(onSettings);
         }},
        {tr("Set Up Ravelo Again…"),
         {},
         [=, this] {
             run(onSetup);
         }},
        {tr("Check for Updates…"), {}, services_.checkUpdates},
        {},
        {tr("Quit Ravelo"), QKeySequence(Qt::CTRL | Qt::Key_Q), services_.quit},
    };
}

QList<StatusItem::Row> StatusItemController::pauseRows() {
    const auto pause = [this](std::optional<Seconds> length) {
        return [this, length] {
            services_.pause.pause(length);
        };
    };
    if (services_.pause.isPaused()) {
        return {{}, {tr("Resume Capture"), {}, [this] {
                         services_.pause.resume();
                     }}};
    }
    return {{},
            {tr("Pause Capture"),
             {},
             {},
             {{tr("Pause for 15 minutes"), {}, pause(Seconds(15 * 60))},
              {tr("Pause for an hour"), {}, pause(Seconds(60 * 60))},
              {tr("Pause until resumed"), {}, pause({})}}}};
}

StatusItem::Icon StatusItemController::icon() const {
    return services_.pause.isPaused()
               ? StatusItem::Icon{drawPausedStatusIcon, {}}
               : StatusItem::Icon{drawStatusIcon, u"org.ravelo.Ravelo-symbolic"_s};
}

void StatusItemController::followPause() {
    menu_ = ownRows() + pauseRows();
    services_.item.replace(icon(), menu_);
    updateTitle();
}

StatusItemController::~StatusItemController() {
    services_.context.onChange = nullptr;
}

void StatusItemController::updateTitle() {
    QStringList lines{usualToolTip()};
    if (services_.pause.isPaused()) {
        const auto until = services_.pause.until();
        lines.prepend(until ? tr("Capture paused until %1")
                                  .arg(toDateTime(*until).toLocalTime().toString(u"HH:mm"_s))
                            : tr("Capture paused"));
    }
    services_.item.setToolTip(lines.join(u'\n'));
}

QString StatusItemController::usualToolTip() const {
    const LiveContext& context = services_.context;
    if (services_.settings.hideClaudeCode() && !context.installed()) {
        return u"Ravelo"_s;
    }
    const Date now = services_.scheduler.now();
    const StatusChoice choice{services_.settings.showPeakHours(),
                              services_.settings.handedOverFirst(), Wording::translated};
    MonitorStatus status = MonitorStatus::of(context, services_.plan, now);
    status.second = services_.second.plan();
    const QTimeZone zone = QTimeZone::systemTimeZone();
    QStringList lines{contextLine(status, now, locale_, zone, choice)};
    lines += contextDetails(status, now, zone, choice);
    lines.removeAll(QString());
    return lines.isEmpty() ? u"Ravelo"_s : lines.join(u'\n');
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
    if (row == menu_.end() || !row->action) {
        return false;
    }
    row->action();
    return true;
}

} // namespace ravelo
