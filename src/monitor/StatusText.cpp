#include "monitor/StatusText.h"

#include "monitor/ContextReader.h"
#include "monitor/LiveContext.h"
#include "monitor/PaceFile.h"
#include "monitor/PlanUsage.h"
#include "monitor/UsageFile.h"
#include "platform/FolderChanges.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* statusContext = "ravelo::StatusText";

QJsonValue json(const std::optional<Date>& date) {
    constexpr double maxSeconds = 2.5e11; // Seconds; keeps the year at four digits.
    if (!date || std::abs(date->sinceReference) > maxSeconds) {
        return QJsonValue::Null;
    }
    return toDateTime(*date).toUTC().toString(Qt::ISODate);
}

QJsonValue age(const std::optional<Date>& date, Date now) {
    // Another machine's clock may be ahead.
    return date ? QJsonValue(std::max(0.0, std::round(now.sinceReference - date->sinceReference)))
                : QJsonValue(QJsonValue::Null);
}

QJsonValue json(const std::optional<UsageWindow>& window, const std::optional<Pace>& pace,
                Date now) {
    if (!window) {
        return QJsonValue::Null;
    }
    QJsonObject object{
        {u"pct"_s, window->pct},
        {u"resets"_s, json(window->resets)},
        {u"pace"_s, pace ? QJsonValue(std::round(pace->perHour * 100) / 100) : QJsonValue()},
        {u"fullAt"_s, json(comingFullAt(pace, now))}};
    if (resetHasPassed(window, now)) {
        object.insert(u"resetPassed"_s, true);
    }
    return object;
}

template <typename T>
QJsonValue orNull(const std::optional<T>& value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

void insertHandedOver(QJsonObject& object, const std::optional<HandedOver>& handed, Date now) {
    const HandedOver known = handed.value_or(HandedOver());
    object.insert(u"window"_s, orNull(known.window));
    object.insert(u"windowUsed"_s, orNull(known.used));
    object.insert(u"windowModel"_s, known.model);
    object.insert(u"windowProject"_s, known.project);
    object.insert(u"windowAge"_s, age(handed ? std::optional(known.at) : std::nullopt, now));
    object.insert(u"cost"_s, orNull(known.cost));
}

/// Today's time of day, else with its date.
QString timeText(Date date, Date now, const QTimeZone& zone, Wording wording) {
    const QDateTime time = toDateTime(date).toTimeZone(zone);
    const bool isToday = time.date() == toDateTime(now).toTimeZone(zone).date();
    return localeOf(wording).toString(time, isToday ? u"HH:mm"_s : u"d MMM, HH:mm"_s);
}

} // namespace

SessionContext chosenContext(const MonitorStatus& status, const StatusChoice& choice) {
    constexpr double outdated = 60; // Claude Code hands over within seconds, or no more.
    SessionContext read{status.model, status.used, status.limit, status.project,
                        status.lastActivity};
    if (!choice.handedOverFirst || !status.handed) {
        return read;
    }
    const HandedOver& handed = *status.handed;
    const double behind =
        status.lastActivity ? status.lastActivity->sinceReference - handed.at.sinceReference : 0;
    if (!handed.window || !handed.used || behind >= outdated) {
        return read;
    }
    return {handed.model, *handed.used, *handed.window, handed.project, handed.at};
}

MonitorStatus MonitorStatus::of(const LiveContext& context, const PlanUsage& usage, Date now) {
    return {context.model(),        context.used(),    context.limit(),
            context.lastActivity(), PeakInfo::at(now), {usage.session(), usage.week()},
            context.project(),      context.handed(),  usage.pace(),
            usage.figuresAt()};
}

MonitorStatus MonitorStatus::fromFiles(const QByteArray& home, const QByteArrayList& otherFolders,
                                       std::unique_ptr<FolderChanges> changes, Date now) {
    const ContextReading reading =
        ContextReader(home, std::move(changes), otherFolders).read(ContextReader::Choice());
    MonitorStatus status;
    status.limit = reading.limit.value_or(LiveContext::usualLimit);
    if (reading.turn) {
        status.model = prettyModel(reading.turn->usage.model);
        status.used = reading.turn->usage.tokens;
        status.lastActivity = reading.turn->modified;
        status.project = reading.turn->project;
    }
    status.handed = reading.handed;
    status.peak = PeakInfo::at(now);
    if (const auto windows = loadUsage(home)) {
        status.plan = *windows;
        status.planAt = usageWritten(home).value_or(now);
        PlanCourse course = loadCourse(home);
        course.add(*windows, *status.planAt);
        status.pace = course.pace(*windows);
    }
    return status;
}

QString contextLine(const MonitorStatus& status, Date now, const QLocale& locale,
                    const QTimeZone& zone, const StatusChoice& choice) {
    QStringList parts;
    const SessionContext context = chosenContext(status, choice);
    if (context.used >= 1) {
        parts << context.model
              << LiveContext::shortCount(context.used) + u" / "_s +
                     LiveContext::shortCount(context.limit);
    }
    if (choice.peakHours) {
        parts << status.peak.label(now, locale, zone, choice.wording);
    }
    return parts.join(u" · "_s);
}

QStringList contextDetails(const MonitorStatus& status, Date now, const QTimeZone& zone,
                           const StatusChoice& choice) {
    QStringList lines;
    const SessionContext context = chosenContext(status, choice);
    if (context.used >= 1 && context.at) {
        const QString time = timeText(*context.at, now, zone, choice.wording);
        lines << (context.project.isEmpty()
                      ? worded(choice.wording, statusContext,
                               QT_TRANSLATE_NOOP("ravelo::StatusText", "Last activity %1"))
                            .arg(time)
                      : context.project + u" · "_s + time);
    }
    const std::pair<const char*, std::optional<Pace>> windows[] = {
        {QT_TRANSLATE_NOOP("ravelo::StatusText", "5h session"), status.pace.session},
        {QT_TRANSLATE_NOOP("ravelo::StatusText", "Week"), status.pace.week}};
    for (const auto& [name, pace] : windows) {
        if (const QString text = fullText(pace, now, zone, choice.wording); !text.isEmpty()) {
            lines << worded(choice.wording, statusContext, name) + u": "_s + text;
        }
    }
    if (status.second) {
        lines << otherPlanLine(*status.second, choice.wording);
    }
    return lines;
}

QString otherPlanLine(const OtherPlan& plan, Wording wording) {
    return worded(wording, statusContext,
                  QT_TRANSLATE_NOOP("ravelo::StatusText", "%1: 5h %2 · week %3"))
        .arg(plan.name, percentText(plan.windows.session), percentText(plan.windows.week));
}

QString statusLine(const MonitorStatus& status, Date now, const QLocale& locale,
                   const QTimeZone& zone, const StatusChoice& choice) {
    const QString context = contextLine(status, now, locale, zone, choice);
    return context + (context.isEmpty() ? u"5h "_s : u" · 5h "_s) +
           percentText(status.plan.session) + u" · week "_s + percentText(status.plan.week) + u'\n';
}

QByteArray statusJson(const MonitorStatus& status, Date now, const QLocale& locale,
                      const QTimeZone& zone) {
    QJsonObject object{{u"model"_s, status.model},
                       {u"used"_s, status.used},
                       {u"limit"_s, status.limit},
                       {u"lastActivity"_s, json(status.lastActivity)},
                       {u"project"_s, status.project},
                       {u"age"_s, age(status.lastActivity, now)},
                       {u"peak"_s, status.peak.label(now, locale, zone)},
                       {u"isPeak"_s, status.peak.isPeak},
                       {u"session"_s, json(status.plan.session, status.pace.session, now)},
                       {u"week"_s, json(status.plan.week, status.pace.week, now)},
                       {u"planAge"_s, age(status.planAt, now)}};
    insertHandedOver(object, status.handed, now);
    if (const auto& second = status.second) {
        object.insert(
            u"second"_s,
            QJsonObject{{u"name"_s, second->name},
                        {u"session"_s, json(second->windows.session, second->pace.session, now)},
                        {u"week"_s, json(second->windows.week, second->pace.week, now)},
                        {u"planAge"_s, age(second->at, now)}});
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace ravelo
