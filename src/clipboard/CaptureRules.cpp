#include "clipboard/CaptureRules.h"

#include "store/Records.h"

#include <QCoreApplication>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

const auto limit = u"(*LIMIT_MATCH=200000)"_s;
constexpr qsizetype lookedAt = 65'536;
constexpr qsizetype longestName = 100;

/// Position of the bracket that is not closed; PCRE only knows where it missed the closing one.
qsizetype openBracket(const QString& expression) {
    QList<qsizetype> open;
    bool inClass = false;
    for (qsizetype i = 0; i < expression.size(); ++i) {
        const QChar c = expression[i];
        if (c == u'\\') {
            ++i;
        } else if (inClass) {
            inClass = c != u']';
            inClass ? void() : open.removeLast();
        } else if (c == u'(' || c == u'[') {
            inClass = c == u'[';
            open.append(i);
        } else if (c == u')' && !open.isEmpty()) {
            open.removeLast();
        }
    }
    return open.isEmpty() ? -1 : open.last();
}

/// Qt translates these texts, if it has a translation.
QString asQtSays(const char* message) {
    return QCoreApplication::translate("QRegularExpression", message);
}

QString mistake(const QString& expression, const QRegularExpression& pattern) {
    const QString error = pattern.errorString();
    const bool isOpen = error.contains(asQtSays("missing closing parenthesis")) ||
                        error.contains(asQtSays("missing terminating ] for character class"));
    const qsizetype bracket = isOpen ? openBracket(expression) : -1;
    if (bracket >= 0) {
        return QCoreApplication::translate("ravelo::CaptureRules",
                                           "A bracket is not closed, at character %1")
            .arg(bracket + 1);
    }
    const qsizetype place =
        std::clamp<qsizetype>(pattern.patternErrorOffset() - limit.size(), 1, expression.size());
    return QCoreApplication::translate("ravelo::CaptureRules", "%1%2, at character %3")
        .arg(error.left(1).toUpper(), error.mid(1))
        .arg(place);
}

} // namespace

Result<QRegularExpression> ignorePattern(const QString& expression) {
    const QRegularExpression pattern(limit + expression);
    return pattern.isValid() ? Result<QRegularExpression>(pattern)
                             : failure(mistake(expression, pattern));
}

QList<QRegularExpression> ignorePatterns(const QStringList& expressions) {
    QList<QRegularExpression> patterns;
    for (const QString& expression : expressions) {
        if (const auto pattern = ignorePattern(expression); pattern && !expression.isEmpty()) {
            patterns.append(*pattern);
        }
    }
    return patterns;
}

PatternAnswer tryPattern(const QRegularExpression& pattern, const QString& text) {
    const auto match = pattern.match(text.left(lookedAt));
    return !match.isValid()   ? PatternAnswer::unknown
           : match.hasMatch() ? PatternAnswer::matches
                              : PatternAnswer::differs;
}

Verdict judge(const CaptureRules& rules, const QString& text) {
    bool unknown = false;
    for (const QRegularExpression& pattern : rules.patterns) {
        const auto answer = tryPattern(pattern, text);
        if (answer == PatternAnswer::matches) {
            return {false};
        }
        unknown = unknown || answer == PatternAnswer::unknown;
    }
    using Secrets = CaptureRules::Secrets;
    const SecretForm* form =
        rules.secrets == Secrets::asAnyText ? nullptr : SecretForms::of(text, rules.keyLikeWords);
    if (form != nullptr) {
        return {rules.secrets == Secrets::inMemory, form->id};
    }
    return {true, unknown ? QString(uncheckedText) : QString()};
}

QString keptName(const CaptureRules& rules, const PasteboardOwner& owner) {
    const bool isKept = rules.programNames == CaptureRules::ProgramNames::kept;
    return isKept && !owner.names.isEmpty() ? owner.names.last().left(longestName) : QString();
}

bool isOfProgram(const PasteboardOwner& owner, const QStringList& names) {
    return std::ranges::any_of(names, [&](const QString& name) {
        return std::ranges::any_of(owner.names, [&](const QString& own) {
            return own.compare(name, Qt::CaseInsensitive) == 0 ||
                   own.section(u'.', -1).compare(name, Qt::CaseInsensitive) == 0;
        });
    });
}

} // namespace ravelo
