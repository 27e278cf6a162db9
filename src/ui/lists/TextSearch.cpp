#include "ui/lists/TextSearch.h"

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
            maybe |= static_cast<char16_t>(begins.is(first[i]) & ends.is(last[i]));
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

} // namespace

TextSearch::TextSearch(const QLocale& locale)
    // In Turkish and Azerbaijani i pairs with İ and ı with I.
    : foldOptions_(locale.language() == QLocale::Turkish ||
                           locale.language() == QLocale::Azerbaijani
                       ? U_FOLD_CASE_EXCLUDE_SPECIAL_I
                       : U_FOLD_CASE_DEFAULT) {}

void TextSearch::setWanted(const QString& wanted) {
    const QString now = folded(wanted);
    // Results for shorter searches are kept for backspace.
    while (!levels_.isEmpty() && !now.contains(levels_.last().wanted)) {
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

bool TextSearch::contains(const QUuid& id, const QString& text, const QString& wanted) {
    const auto known = folded_.constFind(id);
    if (known != folded_.cend()) {
        return known->contains(wanted);
    }
    if (foldOptions_ == U_FOLD_CASE_DEFAULT) { // Then ASCII needs no folding.
        const Scan scan = isAscii(wanted) ? scanAscii(text, wanted) : Scan{false, isAscii(text)};
        if (scan.isAscii) {
            return scan.found;
        }
    }
    return folded_.insert(id, folded(text))->contains(wanted);
}

QString TextSearch::folded(const QString& text) const {
    const QString composed = text.normalized(QString::NormalizationForm_C);
    const auto* source = reinterpret_cast<const UChar*>(composed.utf16());
    const auto length = static_cast<int32_t>(composed.size());
    QString result(composed.size(), Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    auto fold = [&] {
        status = U_ZERO_ERROR;
        return u_strFoldCase(reinterpret_cast<UChar*>(result.data()),
                             static_cast<int32_t>(result.size()), source, length, foldOptions_,
                             &status);
    };
    const int32_t needed = fold();
    if (needed > result.size()) { // Folding can add characters, as for ß.
        result.resize(needed);
        fold();
    }
    result.resize(needed);
    return result;
}

} // namespace ravelo
