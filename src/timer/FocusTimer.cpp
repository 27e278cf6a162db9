#include "timer/FocusTimer.h"

#include <algorithm>

namespace ravelo {

namespace {

constexpr Seconds longest{30.0 * 365 * 24 * 60 * 60};

bool isBlank(QChar c) {
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

/// Without blanks at both ends; line breaks are no blanks.
QString trimmed(const QString& label) {
    const auto first = std::ranges::find_if_not(label, isBlank);
    const auto last = std::find_if_not(label.rbegin(), std::reverse_iterator(first), isBlank);
    return QString(first, last.base() - first);
}

} // namespace

std::optional<FocusTimer> FocusTimer::started(const QString& label, double minutes, Seconds now) {
    const Seconds duration(minutes * 60);
    const bool possible = duration >= Seconds(0) && duration <= longest; // A NaN is neither.
    return possible ? std::optional(FocusTimer{trimmed(label), duration, now}) : std::nullopt;
}

Seconds FocusTimer::remaining(Seconds now) const {
    return std::max(Seconds(0), duration - (now - start.value_or(now)));
}

} // namespace ravelo
