#pragma once

#include <QDateTime>

#include <compare>

namespace ravelo {

/// A moment as seconds since 2001-01-01 00:00:00 UTC, the form in which records are stored; held as
/// it was read, so that a date survives any number of loads and saves to the last bit.
struct Date {
    double sinceReference = 0;

    friend auto operator<=>(const Date&, const Date&) = default;
};

/// 2001-01-01 00:00:00 UTC in seconds since 1970.
inline constexpr double referenceInstant = 978307200;

[[nodiscard]] Date toDate(const QDateTime& time);
[[nodiscard]] QDateTime toDateTime(Date date);

} // namespace ravelo
