#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"
#include "monitor/Wording.h"

#include <QLocale>
#include <QString>
#include <QTimeZone>

namespace ravelo {

/// The provider's peak hours: Monday to Friday, 08:00 to 14:00 in America/New_York.
struct PeakInfo {
    bool isPeak = false;
    Date transition; ///< The end of this peak or the start of the next.

    [[nodiscard]] static PeakInfo at(Date now);

    /// One line, with the time of day in `zone`.
    [[nodiscard]] QString label(Date now, const QLocale& locale,
                                const QTimeZone& zone = QTimeZone::systemTimeZone(),
                                Wording wording = Wording::english) const;

    /// Time until `label` changes; the maximum if never.
    [[nodiscard]] Seconds untilLabelChanges(Date now) const;

    friend bool operator==(const PeakInfo&, const PeakInfo&) = default;
};

/// Remaining time in its two largest units: "2d 17h", "5h 7m", "42m". "0m" if there is none.
[[nodiscard]] QString dur(double seconds);

/// Time until `dur` shows less while `seconds` run out; the maximum if they have.
[[nodiscard]] Seconds untilDurChanges(double seconds);

} // namespace ravelo
