#include "ui/settings/IgnoreTrial.h"

#include "clipboard/CaptureRules.h"

#include <array>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

struct Found {
    PatternAnswer answer = PatternAnswer::differs;
    qsizetype place = 0; ///< Of the pattern.
};

/// A match counts more than a pattern that cannot be tried completely.
Found find(const QString& text, const QStringList& expressions) {
    Found found;
    for (qsizetype i = 0; i < expressions.size(); ++i) {
        const auto pattern = ignorePattern(expressions[i]);
        const auto answer = pattern ? tryPattern(*pattern, text) : PatternAnswer::differs;
        if (answer == PatternAnswer::matches) {
            return {answer, i};
        }
        if (answer == PatternAnswer::unknown) {
            found = {answer, i};
        }
    }
    return found;
}

QString ordinal(qsizetype place) {
    const std::array first = {
        IgnoreTrial::tr("the first pattern"), IgnoreTrial::tr("the second pattern"),
        IgnoreTrial::tr("the third pattern"), IgnoreTrial::tr("the fourth pattern"),
        IgnoreTrial::tr("the fifth pattern")};
    return place < qsizetype(first.size()) ? first[size_t(place)]
                                           : IgnoreTrial::tr("pattern %1").arg(place + 1);
}

} // namespace

QString IgnoreTrial::mistake(const QString& expression) {
    const auto pattern = ignorePattern(expression);
    return pattern ? QString() : pattern.error().message;
}

QString IgnoreTrial::answer(const QString& text, const QStringList& expressions) {
    const Found found = find(text, expressions);
    switch (found.answer) {
    case PatternAnswer::matches:
        return tr("Would be ignored, by %1").arg(ordinal(found.place));
    case PatternAnswer::unknown:
        return tr("Would stay in memory only: %1 takes too long").arg(ordinal(found.place));
    case PatternAnswer::differs:
        break;
    }
    return tr("Would be kept");
}

bool IgnoreTrial::isIgnored(const QString& text, const QStringList& expressions) {
    return find(text, expressions).answer != PatternAnswer::differs;
}

} // namespace ravelo
