#pragma once

#include "store/Records.h"
#include "ui/clips/ClipQuery.h"
#include "ui/lists/TextSearch.h"
#include "ui/theme/TextRange.h"

#include <chrono>
#include <functional>
#include <optional>

namespace ravelo {

/// Searches the history for a phrase; if no clip contains it, for its words, in any order and with
/// or without accents. Or by a regular expression. In portions, so that typing never waits for the
/// whole history. Main thread.
class ClipSearch {
public:
    using Details = std::function<ClipDetails(const QUuid&)>;

    explicit ClipSearch(const QLocale& locale);

    /// Filters refer to `now`, in local time.
    void setWritten(const QString& written, Date now);

    [[nodiscard]] const QString& written() const { return written_; }

    [[nodiscard]] const ClipQuery& query() const { return query_; }

    /// To be followed by `advance`.
    void begin(QList<ClipItem> clips, Details details);

    /// Searches some more clips, for a few milliseconds; more only if one text alone takes longer.
    /// Returns whether all have been searched.
    bool advance();

    /// Returns the clips found, in history order, and ends the search: no clip stays here.
    [[nodiscard]] QList<ClipItem> take();

    /// Whether clips are left out because the expression takes too long.
    [[nodiscard]] bool gaveUp() const { return gaveUp_; }

    /// Ranges of `shown` that match the search whose clips were taken last.
    [[nodiscard]] QList<TextRange> marks(const QString& shown) const;

private:
    [[nodiscard]] bool accepts(const ClipItem& clip);
    [[nodiscard]] bool matches(const ClipItem& clip, const QRegularExpression& expression);

    QLocale locale_;
    QString written_;
    ClipQuery query_;
    TextSearch phrase_;
    TextSearch words_;
    bool byWords_ = false; ///< No clip contains the phrase.
    bool gaveUp_ = false;
    std::chrono::nanoseconds spent_{}; ///< With the expression.
    QList<ClipItem> clips_;
    Details details_;
    qsizetype next_ = 0;
    QList<ClipItem> found_;
    std::optional<TextSearch> marker_;
    std::optional<QRegularExpression> markedBy_; ///< Instead, if there is an expression.
};

} // namespace ravelo
