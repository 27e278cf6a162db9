#pragma once

#include "store/Records.h"
#include "store/history/ClipDetails.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QString>

#include <optional>

namespace ravelo {

/// A written search: filters ("type:image", "app:firefox", "before:7d") and then a text, or a
/// regular expression after "re:". A word that is no filter begins the text.
struct ClipQuery {
    Q_DECLARE_TR_FUNCTIONS(ClipQuery)

public:
    enum class Type { text, link, image, files, color };

    std::optional<Type> type;
    std::optional<Date> after;
    std::optional<Date> before;
    QString program; ///< Part of its name; empty for any.
    QString text;    ///< Empty if there is an expression.
    std::optional<QRegularExpression> expression;
    QString mistake; ///< In the expression, for the user; then nothing is found.

    /// Filters refer to `now`, in local time.
    [[nodiscard]] static ClipQuery parse(const QString& written, Date now);

    [[nodiscard]] static bool isFilter(const QString& word);

    [[nodiscard]] bool hasFilter() const { return type || after || before || !program.isEmpty(); }

    /// Whether the details of clips have to be known.
    [[nodiscard]] bool needsDetails() const { return type == Type::files || !program.isEmpty(); }

    /// Whether the filters let `clip` pass; its text is not compared.
    [[nodiscard]] bool accepts(const ClipItem& clip, const ClipDetails& details) const;

    /// Why nothing was found; empty if nothing was searched for.
    [[nodiscard]] QString nothingFound() const;
};

} // namespace ravelo
