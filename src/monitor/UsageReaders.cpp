#include "monitor/UsageReaders.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView rateLimits("rate_limits");
constexpr QLatin1StringView sessionKey("five_hour");
constexpr QLatin1StringView weekKey("seven_day");
constexpr QLatin1StringView usedPercentage("used_percentage");
constexpr QLatin1StringView resetsAt("resets_at");

QJsonDocument parse(QByteArrayView json) {
    return QJsonDocument::fromJson(QByteArray::fromRawData(json.data(), json.size()));
}

/// An RFC 3339 time with a fraction of a second.
std::optional<Date> parseTime(const QString& text) {
    static const QRegularExpression form(
        u"\\A([0-9]{4}-[0-9]{2}-[0-9]{2}T(?:[01][0-9]|2[0-3]):[0-9]{2}:[0-9]{2})(\\.[0-9]+)"
        "(Z|[+-](?:[01][0-9]|2[0-3]):[0-5][0-9])\\z"_s);
    const QRegularExpressionMatch match = form.match(text);
    const QDateTime whole =
        QDateTime::fromString(match.captured(1) + match.captured(3), Qt::ISODate);
    if (!match.hasMatch() || !whole.isValid()) {
        return std::nullopt;
    }
    const double seconds = static_cast<double>(whole.toSecsSinceEpoch()) - referenceInstant;
    return Date{seconds + (u'0' + match.captured(2)).toDouble()};
}

std::optional<UsageWindow> answeredWindow(const QJsonValue& value) {
    const QJsonValue percent = value.toObject().value("utilization"_L1);
    if (!percent.isDouble()) {
        return std::nullopt;
    }
    return UsageWindow{percent.toDouble(), parseTime(value.toObject().value(resetsAt).toString())};
}

std::optional<UsageWindow> keptWindow(const QJsonValue& value) {
    const QJsonValue percent = value.toObject().value(usedPercentage);
    const QJsonValue resets = value.toObject().value(resetsAt);
    if (!percent.isDouble()) {
        return std::nullopt;
    }
    return UsageWindow{percent.toDouble(),
                       resets.isDouble() ? std::optional(Date{resets.toDouble() - referenceInstant})
                                         : std::nullopt};
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Printable and without blanks, so that it cannot end the header that it is sent in. Such text
/// needs no escapes in JSON, so there is no backslash either.
bool isToken(QByteArrayView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(),
                                          [](char c) { return c > ' ' && c <= '~' && c != '\\'; });
}

/// The contents of the string that starts at `start`; up to the end if it is not closed.
QByteArrayView stringAt(QByteArrayView json, qsizetype start) {
    qsizetype end = start + 1;
    while (end < json.size() && json[end] != '"') {
        end += json[end] == '\\' ? 2 : 1;
    }
    return json.sliced(start + 1, std::min(end, json.size()) - start - 1);
}

/// Credentials without the contents of strings other than names, because Qt's parser would leave
/// copies of them in memory.
struct Redacted {
    QByteArray json;               ///< Each string is replaced by its index in `strings`.
    QList<QByteArrayView> strings; ///< Parts of the original.
};

Redacted redacted(QByteArrayView json) {
    Redacted result;
    for (qsizetype i = 0; i < json.size(); ++i) {
        if (json[i] != '"') {
            result.json += json[i];
            continue;
        }
        const QByteArrayView text = stringAt(json, i);
        i += text.size() + 1;
        const bool isName = json.sliced(std::min(i + 1, json.size())).trimmed().startsWith(':');
        result.json += '"';
        if (isName) {
            result.json += text;
        } else {
            result.json += QByteArray::number(result.strings.size());
            result.strings.append(text);
        }
        result.json += i < json.size() ? "\"" : "";
    }
    return result;
}

} // namespace

std::optional<PlanWindows> readUsageAnswer(QByteArrayView json) {
    const QJsonDocument document = parse(json);
    if (!document.isObject()) {
        return std::nullopt;
    }
    return PlanWindows{answeredWindow(document[sessionKey]), answeredWindow(document[weekKey])};
}

std::optional<PlanWindows> readUsageFile(QByteArrayView json) {
    const QJsonValue limits = parse(json)[rateLimits];
    if (!limits.isObject()) {
        return std::nullopt;
    }
    return PlanWindows{keptWindow(limits[sessionKey]), keptWindow(limits[weekKey])};
}

std::optional<QByteArray> usageFileOf(QByteArrayView statusLine) {
    const QJsonValue limits = parse(statusLine)[rateLimits];
    if (!limits.isObject()) {
        return std::nullopt;
    }
    QJsonObject kept;
    for (const QLatin1StringView window : {sessionKey, weekKey}) {
        QJsonObject fields;
        for (const QLatin1StringView field : {usedPercentage, resetsAt}) {
            if (const QJsonValue value = limits[window][field]; value.isDouble()) {
                fields.insert(field, value);
            }
        }
        if (!fields.isEmpty()) {
            kept.insert(window, fields);
        }
    }
    return QJsonDocument(QJsonObject{{rateLimits, kept}}).toJson();
}

Seconds readRetryAfter(const QByteArray& header, Date now) {
    constexpr double maxDelay = 86400;
    const QByteArray text = header.trimmed();
    double seconds = 0;
    if (!text.isEmpty() && std::all_of(text.begin(), text.end(), isDigit)) {
        seconds = text.toDouble();
    } else {
        QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(text),
                                                 u"ddd, dd MMM yyyy HH:mm:ss 'GMT'"_s);
        date.setTimeZone(QTimeZone::utc());
        seconds = date.isValid() ? toDate(date).sinceReference - now.sinceReference : 0;
    }
    return Seconds(std::clamp(seconds, 0.0, maxDelay));
}

std::optional<Credentials> readCredentials(QByteArrayView json) {
    const Redacted shown = redacted(json);
    const QJsonValue account = parse(shown.json)["claudeAiOauth"_L1];
    const QJsonValue number = account["accessToken"_L1];
    const QByteArrayView token =
        number.isString() ? shown.strings.value(number.toString().toInt()) : QByteArrayView();
    if (!isToken(token)) {
        return std::nullopt;
    }
    const QJsonValue expiry = account["expiresAt"_L1];
    return Credentials{Secret(token.toByteArray()),
                       expiry.isDouble() ? std::optional(expiry.toDouble() / 1000) : std::nullopt};
}

} // namespace ravelo
