#include "ui/theme/FittedTexts.h"

#include <QFontMetricsF>

#include <algorithm>

namespace ravelo {

namespace {

QString numberOf(qsizetype hidden) {
    return u'+' + QString::number(hidden);
}

} // namespace

Fit fit(const QList<double>& widths, double room, double gap,
        const std::function<double(qsizetype)>& restWidth) {
    Fit best;
    double end = -gap;
    for (qsizetype count = 1; count <= widths.size(); ++count) {
        const double width = widths[count - 1];
        const qsizetype hidden = widths.size() - count;
        const double kept = hidden > 0 && restWidth ? gap + restWidth(hidden) : 0;
        end += gap + width;
        if (end + kept <= room) {
            best = {widths.first(count), hidden};
        } else if (count == 1) {
            best = {{std::max(0.0, room - kept)}, hidden};
        }
    }
    return best;
}

FittedTexts::FittedTexts(QObject* parent) : QObject(parent) {
    connect(this, &FittedTexts::given, this, &FittedTexts::refit);
}

QString FittedTexts::rest() const {
    return countsRest_ && fit_.hidden > 0 ? numberOf(fit_.hidden) : QString();
}

void FittedTexts::refit() {
    if (style_ == nullptr) {
        return;
    }
    const QFontMetricsF metrics(style_->font());
    QList<double> widths;
    for (const QString& text : texts_) {
        widths.append(metrics.horizontalAdvance(text));
    }
    const auto restWidth = [&](qsizetype hidden) {
        return countsRest_ ? metrics.horizontalAdvance(numberOf(hidden)) : 0;
    };
    fit_ = fit(widths, room_, gap_, restWidth);
    Q_EMIT fitted();
}

} // namespace ravelo
