#pragma once

#include <QLocale>
#include <QString>

namespace ravelo {

/// A copy that was not kept because it is larger than what is kept.
struct TooLargeCopy {
    enum class Measure { bytesOfText, bytesOfImage, pixelsOfImage };

    Measure measure = Measure::bytesOfText;
    qint64 amount = 0; ///< No more than the limit if nobody knows how much it is.
};

/// For its row: "Text of 14.2 MB, the limit is 8 MB".
[[nodiscard]] QString tooLargeDetail(const TooLargeCopy& copy, const QLocale& locale);

/// For the toast: "Too large to keep · 14.2 MB of text".
[[nodiscard]] QString tooLargeMessage(const TooLargeCopy& copy, const QLocale& locale);

} // namespace ravelo
