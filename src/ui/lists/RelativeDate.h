#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"

#include <QLocale>
#include <QString>

#include <memory>

namespace ravelo {

/// Tells a moment relative to now in the largest unit that fits, in the short style of a locale:
/// "5 min. ago". Whole units only, cut off.
class RelativeDate {
public:
    explicit RelativeDate(const QLocale& locale);
    ~RelativeDate();

    [[nodiscard]] QString text(Date date, Date now) const;

    /// After how long the text may be another one.
    [[nodiscard]] static Seconds untilChange(Date date, Date now);

private:
    struct Formatter;
    std::unique_ptr<Formatter> formatter_;
};

} // namespace ravelo
