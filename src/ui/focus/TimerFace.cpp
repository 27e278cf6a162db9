#include "ui/focus/TimerFace.h"

#include "base/Scheduler.h"
#include "store/Store.h"
#include "timer/TimerString.h"

#include <cmath>

namespace ravelo {

namespace {

/// Wait this much longer, so that rounding does not wake us before the change.
constexpr Seconds margin{0.001};

/// Per full circle. Finer steps are not visible, and each repaints the bar's ring.
constexpr double steps = 360;

} // namespace

TimerFace::TimerFace(const Store& store, Scheduler& scheduler)
    : store_(store), scheduler_(scheduler) {
    connect(&store, &Store::timerChanged, this, &TimerFace::refresh);
}

void TimerFace::setShown(bool shown) {
    if (shown != shown_) {
        shown_ = shown;
        Q_EMIT shownChanged();
        refresh();
    }
}

void TimerFace::refresh() {
    tick_.reset();
    if (!shown_ || !store_.timerRunning()) {
        return;
    }
    const double left = store_.timerRemaining();
    const double whole = std::floor(left);
    remaining_ = timerString(Seconds(left));
    fraction_ = left > 0 ? std::ceil(left / store_.timerDuration() * steps) / steps : 0;
    if (whole > 0) { // The last figure is followed by the timer's own end.
        tick_ = scheduler_.after(Seconds(left - whole) + margin, [this] { refresh(); });
    }
    Q_EMIT changed();
}

} // namespace ravelo
