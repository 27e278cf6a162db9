#include "ui/clips/TooLarge.h"

#include <QCoreApplication>

#include <cmath>

namespace ravelo {

namespace {

using Measure = TooLargeCopy::Measure;

/// Translation context of this file.
struct TooLargeText {
    Q_DECLARE_TR_FUNCTIONS(TooLargeText)
};

/// In units of 2^20, as shown.
int limit(Measure measure) {
    switch (measure) {
    case Measure::bytesOfText:
        return 8;
    case Measure::bytesOfImage:
        return 64;
    case Measure::pixelsOfImage:
        return 32;
    case Measure::deepPixelsOfImage:
        return 16;
    }
    return 0;
}

bool isKnown(const TooLargeCopy& copy) {
    return copy.amount > qint64{limit(copy.measure)} << 20;
}

QString withUnit(const QString& number, Measure measure) {
    switch (measure) {
    case Measure::pixelsOfImage:
        return TooLargeText::tr("%1 megapixels").arg(number);
    case Measure::deepPixelsOfImage:
        return TooLargeText::tr("%1 megapixels of 16 bits").arg(number);
    case Measure::bytesOfText:
    case Measure::bytesOfImage:
        break;
    }
    return TooLargeText::tr("%1 MB").arg(number);
}

QString limitWithUnit(Measure measure) {
    return withUnit(QString::number(limit(measure)), measure);
}

/// Rounded up, so that an amount just over the limit does not look like the limit.
QString amount(const TooLargeCopy& copy, const QLocale& locale) {
    if (!isKnown(copy)) {
        return TooLargeText::tr("more than %1").arg(limitWithUnit(copy.measure));
    }
    constexpr double mebi = 1024.0 * 1024;
    const double tenths = std::ceil(static_cast<double>(copy.amount) / mebi * 10);
    const int decimals = std::fmod(tenths, 10) == 0 ? 0 : 1;
    return withUnit(locale.toString(tenths / 10, 'f', decimals), copy.measure);
}

} // namespace

QString tooLargeDetail(const TooLargeCopy& copy, const QLocale& locale) {
    const bool text = copy.measure == Measure::bytesOfText;
    const QString much = amount(copy, locale);
    if (!isKnown(copy)) {
        return text ? TooLargeText::tr("Text of %1").arg(much)
                    : TooLargeText::tr("Image of %1").arg(much);
    }
    return (text ? TooLargeText::tr("Text of %1, the limit is %2")
                 : TooLargeText::tr("Image of %1, the limit is %2"))
        .arg(much, limitWithUnit(copy.measure));
}

QString tooLargeMessage(const TooLargeCopy& copy, const QLocale& locale) {
    return (copy.measure == Measure::bytesOfText
                ? TooLargeText::tr("Too large to keep \u00b7 %1 of text")
                : TooLargeText::tr("Too large to keep \u00b7 image of %1"))
        .arg(amount(copy, locale));
}

} // namespace ravelo
