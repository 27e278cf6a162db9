#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"
#include "monitor/UsageWindow.h"
#include "monitor/Wording.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QTimeZone>

#include <optional>
#include <vector>

// How fast the plan's windows fill up. Pure values.

namespace ravelo {

/// What makes the two windows different.
struct WindowKind {
    Seconds length;
    Seconds recent;   ///< The pace is that of this time before the newest figure, ...
    Seconds shortest; ///< ... of which so much must have passed since the window began.
};

inline constexpr WindowKind sessionKind{Seconds(5 * 3600), Seconds(3600), Seconds(600)};
/// A whole day, so that nights count.
inline constexpr WindowKind weekKind{Seconds(7 * 86400), Seconds(86400), Seconds(86400)};

struct UsageSample {
    Date at;
    double pct = 0;

    friend bool operator==(const UsageSample&, const UsageSample&) = default;
};

/// The recent figures of one window, in order of time. At most a hundred.
class UsageCourse {
public:
    /// Older figures that contradict this one go: later ones, as the clock was set back, and higher
    /// ones, as the window was reset.
    void add(const UsageSample& sample, const WindowKind& kind);

    [[nodiscard]] const std::vector<UsageSample>& samples() const { return samples_; }

    friend bool operator==(const UsageCourse&, const UsageCourse&) = default;

private:
    std::vector<UsageSample> samples_;
};

/// How one window fills up.
struct Pace {
    double perHour = 0;         ///< Percent.
    double recent = 0;          ///< Percent, in the kind's recent time.
    std::optional<Date> fullAt; ///< If that is before the reset.

    friend bool operator==(const Pace&, const Pace&) = default;
};

/// Nothing if too little is known. A window is taken to be empty when it begins, if it says when it
/// resets.
[[nodiscard]] std::optional<Pace> paceOf(const UsageCourse& course,
                                         const std::optional<Date>& resets, const WindowKind& kind);

struct PlanPace {
    std::optional<Pace> session;
    std::optional<Pace> week;

    friend bool operator==(const PlanPace&, const PlanPace&) = default;
};

/// Both windows.
struct PlanCourse {
    UsageCourse session;
    UsageCourse week;

    /// Ignores a window that had reset by then.
    void add(const PlanWindows& windows, Date at);

    [[nodiscard]] PlanPace pace(const PlanWindows& windows) const;

    friend bool operator==(const PlanCourse&, const PlanCourse&) = default;
};

/// JSON, for the file "~/.cache/ravelo/pace.json". Malformed parts count as absent.
[[nodiscard]] QByteArray encodeCourse(const PlanCourse& course);
[[nodiscard]] PlanCourse decodeCourse(QByteArrayView json);

/// When it will be full, if that is before its reset; nothing if that should have happened by now,
/// because then the figures are too old.
[[nodiscard]] std::optional<Date> comingFullAt(const std::optional<Pace>& pace, Date now);

/// "at this pace full at 11:50", rounded to five minutes, or "at this pace full on Thu"; empty
/// unless it will be.
[[nodiscard]] QString fullText(const std::optional<Pace>& pace, Date now,
                               const QTimeZone& zone = QTimeZone::systemTimeZone(),
                               Wording wording = Wording::english);

} // namespace ravelo
