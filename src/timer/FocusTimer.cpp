#include "timer/FocusTimer.h"

#include <QRegularExpression>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds maxDuration{30.0 * 365 * 24 * 60 * 60};

bool isBlank(QChar c) {
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

/// Trims blanks at both ends, but not line breaks.
QString trimmed(const QString& label) {
    const auto first = std::ranges::find_if_not(label, isBlank);
    const auto last = std::find_if_not(label.rbegin(), std::reverse_iterator(first), isBlank);
    return QString(first, last.base() - first);
}

} // namespace

std::optional<FocusTimer> FocusTimer::started(const QString& label, double minutes, Seconds now) {
    const Seconds duration(minutes * 60);
    const bool possible = duration >= Seconds(0) && duration <= maxDuration; // False for NaN.
    return possible ? std::optional(FocusTimer{trimmed(label), duration, now}) : std::nullopt;
}

Seconds FocusTimer::remaining(Seconds now) const {
    return std::max(Seconds(0), duration - (now - start.value_or(now)));
}

std::optional<double> writtenMinutes(const QString& written) {
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(u"[0-9]*\\.?[0-9]+"_s));
    const double minutes = number.match(written).hasMatch() ? written.toDouble() : 0;
    const bool possible = minutes > 0 && FocusTimer::started({}, minutes, Seconds(0));
    return possible ? std::optional(minutes) : std::nullopt;
}

} // namespace ravelo
