#include "monitor/StatusText.h"

#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString planLine(const QString& title, const std::optional<UsageWindow>& window, Date now) {
    const QString reset = resetText(window, now);
    return title + u": "_s + percentText(window) + (reset.isEmpty() ? reset : u" · "_s + reset) +
           u'\n';
}

QJsonValue json(const std::optional<Date>& date) {
    constexpr double longest = 2.5e11; // Seconds; what has a year of four digits is nearer.
    if (!date || std::abs(date->sinceReference) > longest) {
        return QJsonValue::Null;
    }
    return toDateTime(*date).toUTC().toString(Qt::ISODate);
}

QJsonValue json(const std::optional<UsageWindow>& window) {
    if (!window) {
        return QJsonValue::Null;
    }
    return QJsonObject{{u"pct"_s, window->pct}, {u"resets"_s, json(window->resets)}};
}

} // namespace

MonitorStatus MonitorStatus::of(const LiveContext& context, const PlanUsage& usage, Date now) {
    return {context.model(),        context.used(),    context.limit(),
            context.lastActivity(), PeakInfo::at(now), {usage.session(), usage.week()}};
}

QString contextLine(const MonitorStatus& status, Date now, const QLocale& locale,
                    const QTimeZone& zone) {
    QString peak = status.peak.label(now, locale, zone);
    if (status.used < 1) {
        return peak;
    }
    return status.model + u" · "_s + LiveContext::shortCount(status.used) + u" / "_s +
           LiveContext::shortCount(status.limit) + u" · "_s + peak;
}

QString statusText(const MonitorStatus& status, Date now, const QLocale& locale,
                   const QTimeZone& zone) {
    return contextLine(status, now, locale, zone) + u'\n' +
           planLine(u"5h session"_s, status.plan.session, now) +
           planLine(u"Week"_s, status.plan.week, now);
}

QByteArray statusJson(const MonitorStatus& status, Date now, const QLocale& locale,
                      const QTimeZone& zone) {
    const QJsonObject object{{u"model"_s, status.model},
                             {u"used"_s, status.used},
                             {u"limit"_s, status.limit},
                             {u"lastActivity"_s, json(status.lastActivity)},
                             {u"peak"_s, status.peak.label(now, locale, zone)},
                             {u"isPeak"_s, status.peak.isPeak},
                             {u"session"_s, json(status.plan.session)},
                             {u"week"_s, json(status.plan.week)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace ravelo
