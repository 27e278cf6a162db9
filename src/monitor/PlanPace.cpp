#include "monitor/PlanPace.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double full = 100;
constexpr double samplesInRecent = 60;
constexpr size_t maxSamples = 100;
constexpr double resetDrop = 0.5; ///< Percent. Two sources may round differently.
constexpr double hour = 3600;
constexpr QLatin1StringView sessionKey("five_hour");
constexpr QLatin1StringView weekKey("seven_day");

Date later(Date date, double seconds) {
    return {date.sinceReference + seconds};
}

double between(Date from, Date to) {
    return to.sinceReference - from.sinceReference;
}

/// On the straight line between the samples around `at`, which is not before the first.
double percentAt(const std::vector<UsageSample>& samples, Date at) {
    const auto after = std::ranges::upper_bound(samples, at, {}, &UsageSample::at);
    const UsageSample& before = *std::prev(after);
    if (after == samples.end()) {
        return before.pct;
    }
    const double part = between(before.at, at) / between(before.at, after->at);
    return before.pct + part * (after->pct - before.pct);
}

/// Those of the current window, from its begin on.
std::vector<UsageSample> ofWindow(const UsageCourse& course, const std::optional<Date>& resets,
                                  const WindowKind& kind) {
    std::vector<UsageSample> samples = course.samples();
    if (resets) {
        const Date begin = later(*resets, -kind.length.count());
        std::erase_if(samples, [&](const UsageSample& sample) { return sample.at <= begin; });
        if (!samples.empty()) {
            samples.insert(samples.begin(), {begin, 0});
        }
    }
    return samples;
}

QJsonArray encode(const UsageCourse& course) {
    QJsonArray array;
    for (const UsageSample& sample : course.samples()) {
        array.append(QJsonArray{sample.at.sinceReference + referenceInstant, sample.pct});
    }
    return array;
}

UsageCourse decode(const QJsonValue& value, const WindowKind& kind) {
    UsageCourse course;
    const QJsonArray array = value.toArray();
    for (const auto pair : array) {
        if (pair[0].isDouble() && pair[1].isDouble()) {
            course.add({Date{pair[0].toDouble() - referenceInstant}, pair[1].toDouble()}, kind);
        }
    }
    return course;
}

void addTo(UsageCourse& course, const std::optional<UsageWindow>& window, Date at,
           const WindowKind& kind) {
    if (window && !resetHasPassed(window, at)) {
        course.add({at, window->pct}, kind);
    }
}

std::optional<Pace> paceIn(const UsageCourse& course, const std::optional<UsageWindow>& window,
                           const WindowKind& kind) {
    return window ? paceOf(course, window->resets, kind) : std::nullopt;
}

} // namespace

void UsageCourse::add(const UsageSample& sample, const WindowKind& kind) {
    std::erase_if(samples_, [&](const UsageSample& old) { return old.at >= sample.at; });
    if (!samples_.empty() && sample.pct < samples_.back().pct - resetDrop) {
        samples_.clear();
    }
    // Often enough, and the ends of a time without use.
    const double spacing = kind.recent.count() / samplesInRecent;
    const size_t count = samples_.size();
    if (count >= 2 && (between(samples_[count - 2].at, samples_[count - 1].at) < spacing ||
                       (samples_[count - 2].pct == samples_[count - 1].pct &&
                        samples_[count - 1].pct == sample.pct))) {
        samples_.back() = sample;
    } else {
        samples_.push_back(sample);
    }
    const Date needed = later(sample.at, -kind.recent.count());
    while (samples_.size() > maxSamples ||
           (samples_.size() >= 2 && samples_[1].at <= needed)) { // One is before that time.
        samples_.erase(samples_.begin());
    }
}

std::optional<Pace> paceOf(const UsageCourse& course, const std::optional<Date>& resets,
                           const WindowKind& kind) {
    const std::vector<UsageSample> samples = ofWindow(course, resets, kind);
    if (samples.size() < 2) {
        return std::nullopt;
    }
    const UsageSample last = samples.back();
    const Date from = std::max(samples.front().at, later(last.at, -kind.recent.count()));
    const double passed = between(from, last.at);
    if (passed < kind.shortest.count()) {
        return std::nullopt;
    }
    const double gain = std::max(0.0, last.pct - percentAt(samples, from));
    Pace pace{gain / passed * hour, gain, {}};
    const Date end = resets.value_or(later(last.at, kind.length.count()));
    if (last.pct < full && gain > 0) {
        const Date fullAt = later(last.at, (full - last.pct) / gain * passed);
        pace.fullAt = fullAt < end ? std::optional(fullAt) : std::nullopt;
    }
    return pace;
}

void PlanCourse::add(const PlanWindows& windows, Date at) {
    addTo(session, windows.session, at, sessionKind);
    addTo(week, windows.week, at, weekKind);
}

PlanPace PlanCourse::pace(const PlanWindows& windows) const {
    return {paceIn(session, windows.session, sessionKind), paceIn(week, windows.week, weekKind)};
}

QByteArray encodeCourse(const PlanCourse& course) {
    return QJsonDocument(
               QJsonObject{{sessionKey, encode(course.session)}, {weekKey, encode(course.week)}})
        .toJson(QJsonDocument::Compact);
}

PlanCourse decodeCourse(QByteArrayView json) {
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromRawData(json.data(), json.size()));
    return {decode(document[sessionKey], sessionKind), decode(document[weekKey], weekKind)};
}

std::optional<Date> comingFullAt(const std::optional<Pace>& pace, Date now) {
    return pace && pace->fullAt > now ? pace->fullAt : std::nullopt;
}

QString fullText(const std::optional<Pace>& pace, Date now, const QTimeZone& zone,
                 Wording wording) {
    constexpr const char* context = "ravelo::PaceText";
    constexpr double soon = 20 * hour;
    constexpr double step = 300;
    const std::optional<Date> fullAt = comingFullAt(pace, now);
    if (!fullAt) {
        return {};
    }
    const Date rounded{std::round(fullAt->sinceReference / step) * step};
    const QDateTime time = toDateTime(rounded).toTimeZone(zone);
    return between(now, rounded) < soon
               ? worded(wording, context,
                        QT_TRANSLATE_NOOP("ravelo::PaceText", "at this pace full at %1"))
                     .arg(time.toString(u"HH:mm"_s))
               : worded(wording, context,
                        QT_TRANSLATE_NOOP("ravelo::PaceText", "at this pace full on %1"))
                     .arg(localeOf(wording).toString(time, u"ddd"_s));
}

} // namespace ravelo
