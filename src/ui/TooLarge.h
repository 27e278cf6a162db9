#pragma once

#include <QLocale>
#include <QString>

namespace ravelo {

/// A copy that was not kept because it is larger than what is kept.
struct TooLarge {
    enum class Kind { text, image };
    enum class Unit { bytes, pixels };
    enum class Size {
        known,
        over, ///< At least; its owner did not announce how much it is.
    };

    Kind kind = Kind::text;
    qint64 amount = 0;
    Unit unit = Unit::bytes;
    Size size = Size::known;
};

/// For its row: "Text of 14.2 MB, the limit is 8 MB".
[[nodiscard]] QString tooLargeDetail(const TooLarge& copy, const QLocale& locale);

/// For the toast: "Too large to keep · 14.2 MB of text".
[[nodiscard]] QString tooLargeMessage(const TooLarge& copy, const QLocale& locale);

} // namespace ravelo
