#include "clipboard/FormRules.h"

#include <QSet>
#include <QStringDecoder>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shortestSecret = 12;
constexpr qsizetype piece = 60'000;  ///< What patterns look at in one go.
constexpr qsizetype overlap = 4'000; ///< So that a cut hides nothing.

bool isTextual(const QString& type) {
    return type.startsWith("text/"_L1) || type.startsWith("x-special/"_L1) ||
           type.contains("rtf"_L1) || type.contains("xhtml"_L1);
}

QString textOf(const PasteboardEntry& form) {
    const auto encoding = QStringDecoder::encodingForData(form.bytes, u'<');
    QString text = QStringDecoder(encoding.value_or(QStringDecoder::Utf8))(form.bytes);
    if (form.type.contains("rtf"_L1)) { // Its lines can break anywhere.
        text.remove(u'\r').remove(u'\n');
    }
    return text;
}

/// What stands between characters that `ends` accepts, if it is long enough for a secret.
template <typename Ends>
void addParts(QSet<QString>& parts, const QString& text, Ends ends) {
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || ends(text[i])) {
            if (i - begin >= shortestSecret) {
                parts.insert(text.sliced(begin, i - begin));
            }
            begin = i + 1;
        }
    }
}

bool isHarmless(const CaptureRules& rules, const QString& text, const QString& form) {
    for (qsizetype begin = 0; begin < form.size(); begin += piece - overlap) {
        if (judge(rules, form.mid(begin, piece)) != Verdict()) {
            return false;
        }
    }
    if (rules.secrets == CaptureRules::Secrets::asAnyText) {
        return true;
    }
    QSet<QString> parts;
    addParts(parts, form,
             [](QChar c) { return !c.isLetterOrNumber() && c != u'_' && c != u'-' && c != u'.'; });
    addParts(parts, form, [](QChar c) { return u"\"'<>{}"_s.contains(c); });
    return SecretForms::of(form, KeyLikeWords::no) == nullptr &&
           std::ranges::none_of(parts, [&](const QString& part) {
               // What is in the text is kept with it.
               return SecretForms::of(part, rules.keyLikeWords) != nullptr && !text.contains(part);
           });
}

} // namespace

bool mayKeepForms(const CaptureRules& rules, const QString& text,
                  const QList<PasteboardEntry>& forms) {
    return std::ranges::all_of(forms, [&](const PasteboardEntry& form) {
        return !isTextual(form.type) || isHarmless(rules, text, textOf(form));
    });
}

} // namespace ravelo
