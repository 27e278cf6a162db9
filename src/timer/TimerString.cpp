#include "timer/TimerString.h"

namespace ravelo {

QString timerString(Seconds time) {
    const auto seconds = static_cast<qint64>(time.count());
    const auto twoDigits = [](qint64 number) {
        return QString::number(number).rightJustified(2, u'0');
    };
    const qint64 hours = seconds / 3600;
    const QString rest = twoDigits(seconds / 60 % 60) + u':' + twoDigits(seconds % 60);
    return hours > 0 ? QString::number(hours) + u':' + rest : rest;
}

} // namespace ravelo
