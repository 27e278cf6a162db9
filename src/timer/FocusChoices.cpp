#include "timer/FocusChoices.h"

#include "platform/Preferences.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr int maxMinutes = 24 * 60;

QString minutesKey() {
    return u"focusMinutes"_s;
}

QString presetsKey() {
    return u"focusPresets"_s;
}

std::optional<QStringList> texts(const QJsonValue& value) {
    if (!value.isArray()) {
        return std::nullopt;
    }
    QStringList list;
    const QJsonArray array = value.toArray();
    for (const auto text : array) {
        if (!text.isString()) {
            return std::nullopt;
        }
        list.append(text.toString());
    }
    return list;
}

} // namespace

FocusChoices FocusChoices::load(const Preferences& preferences) {
    FocusChoices choices;
    const double minutes = preferences.value(minutesKey()).toDouble();
    if (minutes > 0 && minutes <= maxMinutes) {
        choices.minutes = minutes;
    }
    choices.presets = texts(preferences.value(presetsKey()))
                          .value_or(QStringList{u"Deep work"_s, u"Estimates"_s, u"Recording"_s,
                                                u"Admin"_s, u"Video"_s});
    return choices;
}

void FocusChoices::keepMinutes(Preferences& preferences) const {
    preferences.set(minutesKey(), minutes);
}

void FocusChoices::keepPresets(Preferences& preferences) const {
    preferences.set(presetsKey(), QJsonArray::fromStringList(presets));
}

QString minutesLabel(double minutes) {
    const int whole = static_cast<int>(minutes);
    if (whole < 60) {
        return u"%1m"_s.arg(whole);
    }
    const QString hours = u"%1h"_s.arg(whole / 60);
    return whole % 60 == 0 ? hours : hours + u"%1"_s.arg(whole % 60, 2, 10, QChar(u'0'));
}

std::optional<int> customMinutes(const QString& typed) {
    static const QRegularExpression integer(u"^[+-]?[0-9]+$"_s);
    const QString text = typed.trimmed();
    if (!integer.match(text).hasMatch() || text.startsWith(u'-')) {
        return std::nullopt;
    }
    bool fits = false;
    const int minutes = text.toInt(&fits);
    if (!fits) {
        return maxMinutes; // Too many digits; zeros alone always fit.
    }
    return minutes > 0 ? std::optional(std::min(minutes, maxMinutes)) : std::nullopt;
}

} // namespace ravelo
