#pragma once

#include "base/Date.h"

#include <QLocale>
#include <QString>
#include <QTimeZone>

namespace ravelo {

/// Whether the provider's peak hours are on: Monday to Friday from 08:00 to 14:00 in New York, by
/// the clock there (IANA time zone America/New_York).
struct PeakInfo {
    bool isPeak = false;
    Date transition; ///< The end of the peak, or, off peak, the begin of the next.

    [[nodiscard]] static PeakInfo at(Date now);

    /// In one line, with the time of day as the user's clock in `zone` shows it.
    [[nodiscard]] QString label(Date now, const QLocale& locale,
                                const QTimeZone& zone = QTimeZone::systemTimeZone()) const;

    friend bool operator==(const PeakInfo&, const PeakInfo&) = default;
};

/// Time that is left, cut to its two largest units: "2d 17h", "5h 7m", "42m". "0m" where it is
/// over.
[[nodiscard]] QString dur(double seconds);

} // namespace ravelo
