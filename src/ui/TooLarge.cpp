#include "ui/TooLarge.h"

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString limit(const TooLarge& copy) {
    if (copy.unit == TooLarge::Unit::pixels) {
        return u"32 megapixels"_s;
    }
    return copy.kind == TooLarge::Kind::text ? u"8 MB"_s : u"64 MB"_s;
}

/// Rounded up, so that what is just over the limit does not look like the limit.
QString amount(const TooLarge& copy, const QLocale& locale) {
    if (copy.size == TooLarge::Size::over) {
        return u"more than "_s + limit(copy);
    }
    constexpr double mebi = 1024.0 * 1024;
    const double tenths = std::ceil(static_cast<double>(copy.amount) / mebi * 10);
    const int decimals = std::fmod(tenths, 10) == 0 ? 0 : 1;
    return locale.toString(tenths / 10, 'f', decimals) +
           (copy.unit == TooLarge::Unit::pixels ? u" megapixels"_s : u" MB"_s);
}

} // namespace

QString tooLargeDetail(const TooLarge& copy, const QLocale& locale) {
    const QString what =
        (copy.kind == TooLarge::Kind::text ? u"Text of "_s : u"Image of "_s) + amount(copy, locale);
    return copy.size == TooLarge::Size::over ? what : what + u", the limit is "_s + limit(copy);
}

QString tooLargeMessage(const TooLarge& copy, const QLocale& locale) {
    return u"Too large to keep \u00b7 "_s + (copy.kind == TooLarge::Kind::text
                                                 ? amount(copy, locale) + u" of text"_s
                                                 : u"image of "_s + amount(copy, locale));
}

} // namespace ravelo
