#include "ui/panel/Pausing.h"

#include "base/Scheduler.h"
#include "clipboard/CapturePause.h"
#include "ui/controls/Toast.h"

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr double minute = 60;

/// Rounding must not put the update before the change.
constexpr double margin = 0.001;

/// Rounded up, so that a new pause shows its length.
double shownUnits(double seconds, double unit) {
    return std::ceil(seconds / unit - margin);
}

} // namespace

QString pauseEnd(const CapturePause& pause, const QLocale& locale) {
    const auto until = pause.until();
    return until ? locale.toString(toDateTime(*until).toLocalTime().time(), u"HH:mm"_s) : QString();
}

Pausing::Pausing(Services services, const QLocale& locale) : services_(services), locale_(locale) {
    connect(&services_.pause, &CapturePause::changed, this, [this] {
        Q_EMIT changed();
        refresh();
    });
}

bool Pausing::isPaused() const {
    return services_.pause.isPaused();
}

QString Pausing::text() const {
    const double left = services_.pause.remaining().count();
    if (!services_.pause.until()) {
        return tr("Paused");
    }
    return left > minute ? tr("%1 min").arg(shownUnits(left, minute))
                         : tr("%1 sec").arg(shownUnits(left, 1));
}

QString Pausing::until() const {
    return pauseEnd(services_.pause, locale_);
}

double Pausing::minutes() const {
    return services_.pause.length().value_or(Seconds(0)).count() / minute;
}

void Pausing::setShown(bool shown) {
    shown_ = shown;
    refresh();
}

void Pausing::pause(double minutes) {
    services_.pause.pause(minutes > 0 ? std::optional(Seconds(minutes * minute)) : std::nullopt);
}

void Pausing::resume() {
    services_.pause.resume();
    services_.toast.flash(tr("Capture resumed"));
}

void Pausing::ignoreNext() {
    services_.pause.ignoreNext();
    services_.toast.flash(tr("Next copy will be ignored"));
}

void Pausing::refresh() {
    Q_EMIT textChanged();
    tick_.reset();
    const double left = services_.pause.remaining().count();
    if (shown_ && left > 0) {
        const double unit = left > minute ? minute : 1;
        const double next = left - (shownUnits(left, unit) - 1) * unit;
        tick_ = services_.scheduler.after(Seconds(next + margin), [this] { refresh(); });
    }
}

} // namespace ravelo
