#pragma once

#include "store/Records.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace ravelo {

/// A written search: filters ("type:image", "before:7d") and then a text. A word that is no filter
/// begins the text.
struct ClipQuery {
    Q_DECLARE_TR_FUNCTIONS(ClipQuery)

public:
    enum class Type { text, link, image, color };

    std::optional<Type> type;
    std::optional<Date> after;
    std::optional<Date> before;
    QString text;

    /// Filters refer to `now`, in local time.
    [[nodiscard]] static ClipQuery parse(const QString& written, Date now);

    [[nodiscard]] static bool isFilter(const QString& word);

    [[nodiscard]] bool hasFilter() const { return type || after || before; }

    /// Whether the filters let `clip` pass; its text is not compared.
    [[nodiscard]] bool accepts(const ClipItem& clip) const;

    /// Why nothing was found; empty if nothing was searched for.
    [[nodiscard]] QString nothingFound() const;
};

} // namespace ravelo
