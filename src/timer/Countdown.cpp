#include "timer/Countdown.h"

#include "platform/AlertSound.h"

namespace ravelo {

void Countdown::start(const QString& label, double minutes) {
    if (const auto timer = FocusTimer::started(label, minutes, scheduler_.uptime())) {
        timer_ = *timer;
        end_ = scheduler_.after(timer_.duration, [this] { finish(); });
        Q_EMIT changed();
    }
}

void Countdown::stop() {
    timer_.start.reset();
    end_.reset();
    Q_EMIT changed();
}

void Countdown::finish() {
    timer_.start.reset();
    end_.reset();
    sound_.play();
    Q_EMIT ended();
    Q_EMIT changed();
}

} // namespace ravelo
