#include "monitor/BarText.h"

#include "monitor/LiveContext.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Zero if it is unknown or from before the last reset.
double current(const std::optional<UsageWindow>& window, Date now) {
    return window && !resetHasPassed(window, now) ? window->pct : 0;
}

QString timeLeft(const std::optional<UsageWindow>& window, Date now) {
    return window && window->resets && !resetHasPassed(window, now) ? timeLeftText(window, now)
                                                                    : QString();
}

/// One of three.
QString byUsage(double percent, const QString& ok, const QString& warn, const QString& critical) {
    return percent < highUsage ? ok : percent < criticalUsage ? warn : critical;
}

QString planText(const PlanWindows& plan, const QString& left) {
    return u"5h "_s + percentText(plan.session) + (left.isEmpty() ? QString() : u' ' + left) +
           u" · week "_s + percentText(plan.week);
}

QString windowLine(const QString& name, const std::optional<UsageWindow>& window, Date now) {
    const QString left = timeLeft(window, now);
    return name + u' ' + percentText(window) +
           (left.isEmpty() ? QString() : u" · resets in "_s + left);
}

} // namespace

QByteArray waybarText(const MonitorStatus& status, Date now, const QLocale& locale,
                      const StatusChoice& choice, const QTimeZone& zone) {
    QStringList lines{windowLine(u"5h session"_s, status.plan.session, now),
                      windowLine(u"Week"_s, status.plan.week, now)};
    if (const QString context = contextLine(status, now, locale, zone, choice);
        !context.isEmpty()) {
        lines << context;
    }
    lines << contextDetails(status, now, zone, choice);
    const double percent =
        std::max(current(status.plan.session, now), current(status.plan.week, now));
    const QJsonObject object{{u"text"_s, planText(status.plan, timeLeft(status.plan.session, now))},
                             {u"tooltip"_s, lines.join(u'\n')},
                             {u"class"_s, byUsage(percent, u"ok"_s, u"warn"_s, u"critical"_s)},
                             {u"percentage"_s, std::round(std::clamp(percent, 0.0, 100.0))}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray tmuxText(const MonitorStatus& status, Date now, const StatusChoice& choice) {
    const auto coloured = [now](const QString& name, const std::optional<UsageWindow>& window) {
        const QString colour = byUsage(current(window, now), u"green"_s, u"yellow"_s, u"red"_s);
        return u"#[fg=%1]%2 %3#[default]"_s.arg(colour, name, percentText(window));
    };
    QStringList parts{coloured(u"5h"_s, status.plan.session)};
    if (const QString left = timeLeft(status.plan.session, now); !left.isEmpty()) {
        parts << left;
    }
    parts << coloured(u"week"_s, status.plan.week);
    const SessionContext context = chosenContext(status, choice);
    if (context.used >= 1) {
        parts << LiveContext::shortCount(context.used) + u'/' +
                     LiveContext::shortCount(context.limit);
    }
    return parts.join(u' ').toUtf8() + '\n';
}

QByteArray handedOverText(const HandedOver& handed, const PlanWindows& plan) {
    QStringList parts;
    if (plan.session || plan.week) {
        parts << planText(plan, {});
    }
    if (!handed.model.isEmpty()) {
        parts << handed.model;
    }
    if (handed.used && handed.window) {
        parts << LiveContext::shortCount(*handed.used) + u" / "_s +
                     LiveContext::shortCount(*handed.window);
    }
    if (handed.cost) {
        parts << u'$' + QString::number(*handed.cost, 'f', 2);
    }
    return parts.join(u" · "_s).toUtf8() + '\n';
}

} // namespace ravelo
