#include "ui/lists/TextSearch.h"

#include <QTextBoundaryFinder>

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>

namespace ravelo {

namespace {

// Long enough for the compiler to vectorise the loop over a block, which has no early exit.
constexpr qsizetype block = 64;

constexpr char16_t lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit;
}

/// A lower-case ASCII character that matches both cases.
struct Wanted {
    explicit Wanted(char16_t unit)
        : small(unit), caseBit(unit >= u'a' && unit <= u'z' ? u'a' - u'A' : 0) {}

    [[nodiscard]] bool is(char16_t unit) const { return (unit | caseBit) == small; }

    char16_t small;
    char16_t caseBit;
};

struct Scan {
    bool found = false;
    bool isAscii = true; ///< Of what was scanned; of the whole text if nothing was found.
};

/// `wanted` is non-empty lower-case ASCII.
Scan scanAscii(QStringView text, QStringView wanted) {
    const qsizetype places = text.size() - wanted.size() + 1;
    const char16_t* const first = text.utf16();
    const char16_t* const last = first + wanted.size() - 1;
    const Wanted begins(wanted.front().unicode());
    const Wanted ends(wanted.back().unicode());
    const auto matches = [&](qsizetype place) {
        return std::equal(wanted.utf16(), wanted.utf16() + wanted.size(), first + place,
                          [](char16_t a, char16_t b) { return a == lower(b); });
    };
    // A combining mark changes the last letter.
    const auto foundAt = [&](qsizetype place, char16_t before) {
        const char16_t next = place + 1 < places ? last[place + 1] : u'\0';
        return Scan{true, (before | next) <= 0x7f};
    };
    char16_t all = 0;
    qsizetype place = 0;
    for (; place + block <= places; place += block) {
        char16_t maybe = 0;
        for (qsizetype i = place; i < place + block; ++i) {
            all |= first[i];
            maybe |=
                static_cast<char16_t>(char16_t(begins.is(first[i])) & char16_t(ends.is(last[i])));
        }
        for (qsizetype i = place; maybe != 0 && i < place + block; ++i) {
            if (matches(i)) {
                return foundAt(i, all);
            }
        }
    }
    for (qsizetype i = place; i < text.size(); ++i) {
        all |= first[i];
    }
    for (; place < places; ++place) {
        if (matches(place)) {
            return foundAt(place, all);
        }
    }
    return {false, all <= 0x7f};
}

bool isAscii(QStringView text) {
    char16_t all = 0;
    for (const char16_t* unit = text.utf16(); unit != text.utf16() + text.size(); ++unit) {
        all |= *unit;
    }
    return all <= 0x7f;
}

bool containsAll(const QString& text, const QStringList& wanted) {
    return std::ranges::all_of(wanted, [&](const QString& one) { return text.contains(one); });
}

/// Whatever has all of `now` has all of `before`.
bool isNarrower(const QStringList& now, const QStringList& before) {
    return std::ranges::all_of(before, [&](const QString& old) {
        return std::ranges::any_of(now, [&](const QString& one) { return one.contains(old); });
    });
}

/// Without overlaps, in order.
QList<TextRange> joined(QList<TextRange> ranges) {
    std::ranges::sort(ranges, {}, &TextRange::start);
    QList<TextRange> joined;
    for (const TextRange& range : ranges) {
        const qsizetype end = range.start + range.length;
        if (!joined.isEmpty() && range.start < joined.last().start + joined.last().length) {
            joined.last().length = std::max(joined.last().length, end - joined.last().start);
        } else {
            joined.append(range);
        }
    }
    return joined;
}

QString withoutMarks(const QString& text) {
    QString bare = text.normalized(QString::NormalizationForm_KD);
    bare.removeIf([](QChar unit) { return unit.category() == QChar::Mark_NonSpacing; });
    return bare;
}

QString foldCase(const QString& text, unsigned options) {
    const auto* source = reinterpret_cast<const UChar*>(text.utf16());
    const auto length = static_cast<int32_t>(text.size());
    QString result(text.size(), Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    auto fold = [&] {
        status = U_ZERO_ERROR;
        return u_strFoldCase(reinterpret_cast<UChar*>(result.data()),
                             static_cast<int32_t>(result.size()), source, length, options, &status);
    };
    const int32_t needed = fold();
    if (needed > result.size()) { // Folding can add characters, as for ß.
        result.resize(needed);
        fold();
    }
    result.resize(needed);
    return result;
}

void appendLower(QString& to, QStringView ascii) {
    const qsizetype start = to.size();
    to.resize(start + ascii.size());
    std::ranges::transform(ascii.utf16(), ascii.utf16() + ascii.size(),
                           reinterpret_cast<char16_t*>(to.data()) + start, lower);
}

} // namespace

TextSearch::TextSearch(const QLocale& locale, For what)
    // In Turkish and Azerbaijani i pairs with İ and ı with I.
    : foldOptions_(locale.language() == QLocale::Turkish ||
                           locale.language() == QLocale::Azerbaijani
                       ? U_FOLD_CASE_EXCLUDE_SPECIAL_I
                       : U_FOLD_CASE_DEFAULT),
      what_(what) {}

void TextSearch::setWanted(const QString& wanted) {
    const QStringList now = parts(wanted);
    // Results for shorter searches are kept for backspace.
    while (!levels_.isEmpty() && !isNarrower(now, levels_.last().wanted)) {
        levels_.removeLast();
    }
    if (now.isEmpty()) {
        levels_ = {};
        folded_ = {};
    } else if (levels_.isEmpty()) {
        levels_.append({now, {}});
    } else if (levels_.last().wanted != now) {
        levels_.append({now, levels_.last().missed});
    }
}

QStringList TextSearch::parts(const QString& wanted) const {
    const QString all = folded(wanted);
    if (what_ == For::words) {
        return all.simplified().split(u' ', Qt::SkipEmptyParts);
    }
    return all.isEmpty() ? QStringList() : QStringList{all};
}

bool TextSearch::finds(const QUuid& id, const QString& text) {
    if (levels_.isEmpty()) {
        return true;
    }
    Level& level = levels_.last();
    if (level.missed.contains(id)) {
        return false;
    }
    const bool found = contains(id, text, level.wanted);
    if (!found) {
        level.missed.insert(id);
    }
    return found;
}

void TextSearch::skipMissed(const TextSearch& other) {
    if (levels_.isEmpty() || other.levels_.isEmpty() ||
        levels_.last().wanted != other.levels_.last().wanted) {
        return;
    }
    for (const QUuid& id : other.levels_.last().missed) {
        if (!other.folded_.contains(id)) {
            levels_.last().missed.insert(id);
        }
    }
}

bool TextSearch::contains(const QUuid& id, const QString& text, const QStringList& wanted) {
    const auto known = folded_.constFind(id);
    if (known != folded_.cend()) {
        return containsAll(*known, wanted);
    }
    bool plain = foldOptions_ == U_FOLD_CASE_DEFAULT; // Then ASCII needs no folding.
    for (const QString& one : wanted) {
        if (!plain) {
            break;
        }
        const Scan scan = isAscii(one) ? scanAscii(text, one) : Scan{false, isAscii(text)};
        plain = scan.isAscii;
        if (plain && !scan.found) {
            return false;
        }
    }
    return plain || containsAll(*folded_.insert(id, folded(text)), wanted);
}

QList<TextRange> TextSearch::matches(const QString& text) const {
    if (levels_.isEmpty()) {
        return {};
    }
    const Letters all = letters(text);
    QList<TextRange> matches;
    for (const QString& one : levels_.last().wanted) {
        for (qsizetype at = all.folded.indexOf(one); at >= 0;
             at = all.folded.indexOf(one, at + one.size())) {
            const TextRange last = all.origin(at + one.size() - 1);
            const qsizetype start = all.origin(at).start;
            matches.append({start, last.start + last.length - start});
        }
    }
    return joined(std::move(matches));
}

TextSearch::Letters TextSearch::letters(const QString& text) const {
    if (foldOptions_ == U_FOLD_CASE_DEFAULT && isAscii(text)) {
        return {folded(text), {}};
    }
    Letters all;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > start; end = finder.toNextBoundary()) {
        const QString letter = folded(text.mid(start, end - start));
        all.folded += letter;
        all.origins.insert(all.origins.size(), letter.size(), {start, end - start});
        start = end;
    }
    return all;
}

/// Most texts are ASCII with a few other characters: only those, each with the letter before
/// it, which it may combine with, need Unicode's rules.
QString TextSearch::folded(const QString& text) const {
    if (foldOptions_ != U_FOLD_CASE_DEFAULT) {
        return foldedByUnicode(text);
    }
    QString result;
    result.reserve(text.size());
    const QStringView all = text;
    const auto isOther = [](QChar unit) {
        return unit.unicode() > 0x7f;
    };
    for (auto at = all.begin(); at != all.end();) {
        const auto other = std::find_if(at, all.end(), isOther);
        const auto start = other == all.end() || other == at ? other : other - 1;
        appendLower(result, QStringView(at, start));
        at = std::find_if_not(other, all.end(), isOther);
        result += foldedByUnicode(QStringView(start, at).toString());
    }
    return result;
}

QString TextSearch::foldedByUnicode(const QString& text) const {
    return foldCase(what_ == For::words ? withoutMarks(text)
                                        : text.normalized(QString::NormalizationForm_C),
                    foldOptions_);
}

} // namespace ravelo
