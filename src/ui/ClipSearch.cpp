#include "ui/ClipSearch.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

namespace ravelo {

ClipSearch::ClipSearch(const QLocale& locale)
    // Turkish and Azerbaijani pair the dotted i with İ and the dotless ı with I.
    : foldOptions_(locale.language() == QLocale::Turkish ||
                           locale.language() == QLocale::Azerbaijani
                       ? U_FOLD_CASE_EXCLUDE_SPECIAL_I
                       : U_FOLD_CASE_DEFAULT) {}

QList<ClipItem> ClipSearch::filtered(const QList<ClipItem>& clips, const QString& search) {
    if (search.isEmpty()) {
        folded_.clear();
        return clips;
    }
    const QString wanted = folded(search);
    QList<ClipItem> found;
    for (const ClipItem& clip : clips) {
        auto text = folded_.find(clip.id);
        if (text == folded_.end()) {
            text = folded_.insert(clip.id, folded(clip.text));
        }
        if (text->contains(wanted)) {
            found.append(clip);
        }
    }
    return found;
}

QString ClipSearch::folded(const QString& text) const {
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
