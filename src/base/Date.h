#pragma once

#include <QDateTime>

#include <compare>

namespace ravelo {

/// Seconds since 2001-01-01 00:00:00 UTC, as records are stored. Kept as read, so that loading and
/// saving never changes a date, not even in the last bit.
struct Date {
    double sinceReference = 0;

    friend auto operator<=>(const Date&, const Date&) = default;
};

/// 2001-01-01 00:00:00 UTC in seconds since 1970.
inline constexpr double referenceInstant = 978307200;

[[nodiscard]] Date toDate(const QDateTime& time);
[[nodiscard]] QDateTime toDateTime(Date date);

} // namespace ravelo
