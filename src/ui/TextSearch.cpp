#include "ui/TextSearch.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>

namespace ravelo {

namespace {

// The loops over blocks have no early exit, so that the compiler makes vectors of them.
constexpr qsizetype block = 64;

bool isAscii(QStringView text) {
    const char16_t* at = text.utf16();
    const char16_t* const end = at + text.size();
    for (; end - at >= block; at += block) {
        char16_t all = 0;
        for (qsizetype i = 0; i < block; ++i) {
            all |= at[i];
        }
        if (all > 0x7f) {
            return false;
        }
    }
    return std::all_of(at, end, [](char16_t unit) { return unit <= 0x7f; });
}

constexpr char16_t lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit;
}

constexpr char16_t upper(char16_t unit) {
    return unit >= u'a' && unit <= u'z' ? unit - (u'a' - u'A') : unit;
}

/// A letter in both its cases.
struct Either {
    explicit Either(char16_t unit) : small(unit), large(upper(unit)) {}

    [[nodiscard]] bool is(char16_t unit) const { return (unit == small) | (unit == large); }

    char16_t small;
    char16_t large;
};

/// Both are ASCII, and `wanted`, which is not empty, has no capitals.
bool containsAscii(QStringView text, QStringView wanted) {
    const qsizetype places = text.size() - wanted.size() + 1;
    const char16_t* const first = text.utf16();
    const char16_t* const last = first + wanted.size() - 1;
    const Either begins(wanted.front().unicode());
    const Either ends(wanted.back().unicode());
    const auto matches = [&](qsizetype place) {
        return std::equal(wanted.utf16(), wanted.utf16() + wanted.size(), first + place,
                          [](char16_t a, char16_t b) { return a == lower(b); });
    };
    qsizetype place = 0;
    for (; place + block <= places; place += block) {
        bool maybe = false;
        for (qsizetype i = place; i < place + block; ++i) {
            maybe |= begins.is(first[i]) & ends.is(last[i]);
        }
        for (qsizetype i = place; maybe && i < place + block; ++i) {
            if (matches(i)) {
                return true;
            }
        }
    }
    for (; place < places; ++place) {
        if (matches(place)) {
            return true;
        }
    }
    return false;
}

} // namespace

TextSearch::TextSearch(const QLocale& locale)
    // Turkish and Azerbaijani pair the dotted i with İ and the dotless ı with I.
    : foldOptions_(locale.language() == QLocale::Turkish ||
                           locale.language() == QLocale::Azerbaijani
                       ? U_FOLD_CASE_EXCLUDE_SPECIAL_I
                       : U_FOLD_CASE_DEFAULT) {}

void TextSearch::setWanted(const QString& wanted) {
    const QString before = std::exchange(wanted_, folded(wanted));
    if (wanted_.isEmpty()) {
        folded_ = {};
    }
    if (wanted_.isEmpty() || before.isEmpty() || !wanted_.contains(before)) {
        missed_ = {};
    }
}

bool TextSearch::finds(const QUuid& id, const QString& text) {
    if (wanted_.isEmpty()) {
        return true;
    }
    if (missed_.contains(id)) {
        return false;
    }
    auto known = folded_.find(id);
    if (known == folded_.end()) {
        const bool asItIs = foldOptions_ == U_FOLD_CASE_DEFAULT && isAscii(text);
        known = folded_.insert(id, asItIs ? QString() : folded(text));
    }
    const bool found = known->isNull() ? isAscii(wanted_) && containsAscii(text, wanted_)
                                       : known->contains(wanted_);
    if (!found) {
        missed_.insert(id);
    }
    return found;
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
    if (needed > result.size()) { // A letter such as ß became two.
        result.resize(needed);
        fold();
    }
    result.resize(needed);
    return result;
}

} // namespace ravelo
