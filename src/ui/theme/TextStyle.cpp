#include "ui/theme/TextStyle.h"

#include <QFontMetricsF>

#include <cmath>

namespace ravelo {

double LineMetrics::baseLine(double devicePixelRatio) const {
    double up = std::round(ascent * devicePixelRatio);
    double down = std::round(descent * devicePixelRatio);
    if (devicePixelRatio > 1 && down < descent * devicePixelRatio) {
        // At fractional scales rounding would cut off descenders: take the space from above.
        ++down;
        --up;
    }
    const double above = std::floor((line * devicePixelRatio - up - down) / 2);
    return (above + up) / devicePixelRatio;
}

TextStyle::TextStyle(QObject* parent) : QObject(parent), font_(QStringLiteral("Inter")) {
    // Glyph widths do not depend on the scale.
    font_.setHintingPreference(QFont::PreferNoHinting);
}

void TextStyle::setSize(int size) {
    size_ = size;
    font_.setPixelSize(size);
    Q_EMIT changed();
}

void TextStyle::setWeight(int weight) {
    font_.setWeight(static_cast<QFont::Weight>(weight));
    Q_EMIT changed();
}

void TextStyle::setTracking(double tracking) {
    font_.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    Q_EMIT changed();
}

LineMetrics TextStyle::metrics() const {
    const QFontMetricsF metrics(font_);
    return {metrics.ascent(), metrics.descent(), static_cast<double>(line_)};
}

} // namespace ravelo
