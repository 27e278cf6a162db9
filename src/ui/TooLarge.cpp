#include "ui/TooLarge.h"

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

using Measure = TooLargeCopy::Measure;

/// In units of 2^20, as the amounts are told.
int limit(Measure measure) {
    switch (measure) {
    case Measure::bytesOfText:
        return 8;
    case Measure::bytesOfImage:
        return 64;
    case Measure::pixelsOfImage:
        return 32;
    }
    return 0;
}

bool isKnown(const TooLargeCopy& copy) {
    return copy.amount > qint64{limit(copy.measure)} << 20;
}

QString withUnit(const QString& number, Measure measure) {
    return number + (measure == Measure::pixelsOfImage ? u" megapixels"_s : u" MB"_s);
}

/// Rounded up, so that what is just over the limit does not look like the limit.
QString amount(const TooLargeCopy& copy, const QLocale& locale) {
    if (!isKnown(copy)) {
        return u"more than "_s + withUnit(QString::number(limit(copy.measure)), copy.measure);
    }
    constexpr double mebi = 1024.0 * 1024;
    const double tenths = std::ceil(static_cast<double>(copy.amount) / mebi * 10);
    const int decimals = std::fmod(tenths, 10) == 0 ? 0 : 1;
    return withUnit(locale.toString(tenths / 10, 'f', decimals), copy.measure);
}

} // namespace

QString tooLargeDetail(const TooLargeCopy& copy, const QLocale& locale) {
    const QString what = (copy.measure == Measure::bytesOfText ? u"Text of "_s : u"Image of "_s) +
                         amount(copy, locale);
    return isKnown(copy) ? what + u", the limit is "_s +
                               withUnit(QString::number(limit(copy.measure)), copy.measure)
                         : what;
}

QString tooLargeMessage(const TooLargeCopy& copy, const QLocale& locale) {
    return u"Too large to keep \u00b7 "_s + (copy.measure == Measure::bytesOfText
                                                 ? amount(copy, locale) + u" of text"_s
                                                 : u"image of "_s + amount(copy, locale));
}

} // namespace ravelo
