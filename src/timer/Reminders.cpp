#include "timer/Reminders.h"

#include "platform/Preferences.h"

#include <QJsonArray>
#include <QTextBoundaryFinder>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr int maxLength = 16; ///< Characters as people count them.

QString openKey() {
    return u"reminderOpen"_s;
}

QString textsKey() {
    return u"reminders"_s;
}

/// Empty unless all elements are texts.
QStringList toTexts(const QJsonArray& array) {
    QStringList texts;
    for (const auto value : array) {
        if (!value.isString()) {
            return {};
        }
        texts.append(value.toString());
    }
    return texts;
}

QStringList loadTexts(const Preferences& preferences) {
    const QStringList texts = toTexts(preferences.value(textsKey()).toArray());
    const QString single = preferences.value(u"reminder"_s).toString();
    return !texts.isEmpty() || single.isEmpty() ? texts : QStringList{single};
}

} // namespace

Reminders Reminders::load(const Preferences& preferences) {
    return {preferences.value(openKey()).toBool(false), loadTexts(preferences)};
}

void Reminders::keepOpen(Preferences& preferences) const {
    preferences.set(openKey(), open);
}

void Reminders::keepTexts(Preferences& preferences) const {
    preferences.set(textsKey(), QJsonArray::fromStringList(texts));
}

std::optional<QStringList> Reminders::added(const QString& typed) const {
    QString text = typed.trimmed();
    if (text.isEmpty()) {
        return std::nullopt;
    }
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    for (int count = 0; count < maxLength && characters.toNextBoundary() >= 0; ++count) {
    }
    if (const qsizetype end = characters.position(); end >= 0) {
        text.truncate(end);
    }
    return QStringList(texts) << text;
}

} // namespace ravelo
