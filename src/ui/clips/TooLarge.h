#pragma once

#include <QLocale>
#include <QString>

namespace ravelo {

/// A copy that was too large to keep.
struct TooLargeCopy {
    enum class Measure { bytesOfText, bytesOfImage, pixelsOfImage, deepPixelsOfImage };

    Measure measure = Measure::bytesOfText;
    qint64 amount = 0; ///< At most the limit if the real amount is unknown.
};

/// For the row: "Text of 14.2 MB, the limit is 8 MB".
[[nodiscard]] QString tooLargeDetail(const TooLargeCopy& copy, const QLocale& locale);

/// For the toast: "Too large to keep · 14.2 MB of text".
[[nodiscard]] QString tooLargeMessage(const TooLargeCopy& copy, const QLocale& locale);

} // namespace ravelo
