#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"

#include <QLocale>
#include <QString>

#include <memory>

namespace ravelo {

/// Formats a date relative to now in the largest fitting whole unit, in the locale's short style:
/// "5 min. ago".
class RelativeDate {
public:
    explicit RelativeDate(const QLocale& locale);
    ~RelativeDate();

    [[nodiscard]] QString text(Date date, Date now) const;

    /// Earliest time after which the text can change.
    [[nodiscard]] static Seconds untilChange(Date date, Date now);

private:
    struct Formatter;
    std::unique_ptr<Formatter> formatter_;
};

} // namespace ravelo
