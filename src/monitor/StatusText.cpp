#include "monitor/StatusText.h"

#include "monitor/ContextReader.h"
#include "monitor/LiveContext.h"
#include "monitor/PlanUsage.h"
#include "monitor/UsageFile.h"
#include "platform/FolderChanges.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QJsonValue json(const std::optional<Date>& date) {
    constexpr double maxSeconds = 2.5e11; // Seconds; keeps the year at four digits.
    if (!date || std::abs(date->sinceReference) > maxSeconds) {
        return QJsonValue::Null;
    }
    return toDateTime(*date).toUTC().toString(Qt::ISODate);
}

QJsonValue json(const std::optional<UsageWindow>& window, Date now) {
    if (!window) {
        return QJsonValue::Null;
    }
    QJsonObject object{{u"pct"_s, window->pct}, {u"resets"_s, json(window->resets)}};
    if (resetHasPassed(window, now)) {
        object.insert(u"resetPassed"_s, true);
    }
    return object;
}

} // namespace

MonitorStatus MonitorStatus::of(const LiveContext& context, const PlanUsage& usage, Date now) {
    return {context.model(),        context.used(),    context.limit(),
            context.lastActivity(), PeakInfo::at(now), {usage.session(), usage.week()}};
}

MonitorStatus MonitorStatus::fromFiles(const QByteArray& home, const QByteArrayList& otherFolders,
                                       std::unique_ptr<FolderChanges> changes, Date now) {
    const ContextReading reading = ContextReader(home, std::move(changes), otherFolders).read();
    MonitorStatus status;
    status.limit = reading.limit.value_or(LiveContext::usualLimit);
    if (reading.turn) {
        status.model = prettyModel(reading.turn->usage.model);
        status.used = reading.turn->usage.tokens;
        status.lastActivity = reading.turn->modified;
    }
    status.peak = PeakInfo::at(now);
    status.plan = loadUsage(home).value_or(PlanWindows());
    return status;
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

QString statusLine(const MonitorStatus& status, Date now, const QLocale& locale,
                   const QTimeZone& zone) {
    return contextLine(status, now, locale, zone) + u" · 5h "_s + percentText(status.plan.session) +
           u" · week "_s + percentText(status.plan.week) + u'\n';
}

QByteArray statusJson(const MonitorStatus& status, Date now, const QLocale& locale,
                      const QTimeZone& zone) {
    const QJsonObject object{{u"model"_s, status.model},
                             {u"used"_s, status.used},
                             {u"limit"_s, status.limit},
                             {u"lastActivity"_s, json(status.lastActivity)},
                             {u"peak"_s, status.peak.label(now, locale, zone)},
                             {u"isPeak"_s, status.peak.isPeak},
                             {u"session"_s, json(status.plan.session, now)},
                             {u"week"_s, json(status.plan.week, now)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace ravelo
