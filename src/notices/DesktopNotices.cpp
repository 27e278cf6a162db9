#include "notices/DesktopNotices.h"

#include "monitor/PlanUsage.h"
#include "notices/Notices.h"
#include "platform/Notifier.h"
#include "platform/Preferences.h"
#include "settings/AppSettings.h"

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds margin(1); ///< The reset must have passed.
constexpr double moreMinutes = 5;
const auto sessionKey = u"planSession"_s; // Of preferences and notifications.
const auto weekKey = u"planWeek"_s;

} // namespace

DesktopNotices::DesktopNotices(Services services) : services_(std::move(services)) {
    connect(&services_.plan, &PlanUsage::changed, this, &DesktopNotices::followPlan);
    connect(&services_.settings, &AppSettings::notifyPlanChanged, this, &DesktopNotices::beginPlan);
    connect(&services_.notices, &Notices::changed, this, &DesktopNotices::followNotices);
    connect(&services_.settings, &AppSettings::notifySavingChanged, this,
            &DesktopNotices::followNotices);
    followPlan();
}

bool DesktopNotices::mayShow(bool wanted) const {
    return wanted && !services_.isLocked();
}

void DesktopNotices::timerEnded(double minutes) {
    if (!mayShow(services_.settings.notifyTimer())) {
        return;
    }
    const auto start = [this](double length) {
        return [this, length] {
            if (onStartTimer) {
                onStartTimer(length);
            }
        };
    };
    services_.notifier.show(
        {u"timer"_s,
         tr("The timer has ended"),
         {},
         {{tr("Start again"), start(minutes)}, {tr("5 more minutes"), start(moreMinutes)}}});
}

void DesktopNotices::filesReceived(const QList<QUrl>& files, Arrivals arrivals) {
    if (arrivals == Arrivals::goOn) {
        return;
    }
    const QSet<QUrl> now(files.begin(), files.end());
    const qsizetype count = QSet<QUrl>(now).subtract(received_).size();
    received_ = now;
    if (count > 0 && mayShow(services_.settings.notifyFiles())) {
        services_.notifier.show(
            {u"files"_s,
             count == 1 ? tr("A file has arrived") : tr("%1 files have arrived").arg(count),
             tr("In your downloads folder."),
             {}});
    }
}

void DesktopNotices::screenUnlocked() {
    followNotices();
    followPlan();
}

void DesktopNotices::followNotices() {
    if (services_.notices.kind() != Notices::SavingFails) {
        failureShown_ = false;
    } else if (!failureShown_ && mayShow(services_.settings.notifySaving())) {
        failureShown_ = true;
        services_.notifier.show(
            {u"saving"_s, tr("Saving fails"), tr("The panel has the reason."), {}});
    }
}

/// Forgets what the user was notified of before it was turned off.
void DesktopNotices::beginPlan() {
    if (services_.settings.notifyPlan()) {
        services_.preferences.set(sessionKey, QJsonValue());
        services_.preferences.set(weekKey, QJsonValue());
    }
    followPlan();
}

void DesktopNotices::followPlan() {
    nextReset_.reset();
    if (!mayShow(services_.settings.notifyPlan())) {
        return;
    }
    const Date now = services_.scheduler.now();
    std::optional<Date> next;
    for (const auto& due : {follow(tr("5h session"), sessionKey, services_.plan.session()),
                            follow(tr("Week"), weekKey, services_.plan.week())}) {
        if (due && (!next || *due < *next)) {
            next = due;
        }
    }
    if (next) {
        nextReset_ = services_.scheduler.after(
            Seconds(next->sinceReference - now.sinceReference) + margin, [this] { followPlan(); });
    }
}

std::optional<Date> DesktopNotices::follow(const QString& name, const QString& key,
                                           const std::optional<UsageWindow>& window) {
    const Date now = services_.scheduler.now();
    const PlanAlert before = decodeAlert(services_.preferences.value(key));
    PlanAlert known = before;
    // The next window may already have passed a threshold, too.
    for (PlanNews news = planNews(known, window, now); news != PlanNews::none;
         news = planNews(known, window, now)) {
        show(news, name, key, window);
        known = notifiedOf(news, known, window, now);
    }
    if (known != before) {
        services_.preferences.set(key, encodeAlert(known));
    }
    return known.level > 0 ? known.resets : std::nullopt;
}

void DesktopNotices::show(PlanNews news, const QString& name, const QString& key,
                          const std::optional<UsageWindow>& window) {
    if (news == PlanNews::reset) {
        services_.notifier.show({key, tr("%1 was reset").arg(name), {}, {}});
        return;
    }
    const Date now = services_.scheduler.now();
    const QString left = window && window->resets ? timeLeftText(window, now) : QString();
    services_.notifier.show({key,
                             tr("%1: %2 used").arg(name, percentText(window)),
                             left.isEmpty() ? QString() : tr("Resets in %1.").arg(left),
                             {}});
}

} // namespace ravelo
