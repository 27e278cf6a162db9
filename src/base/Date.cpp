#include "base/Date.h"

namespace ravelo {

Date toDate(const QDateTime& time) {
    return {static_cast<double>(time.toMSecsSinceEpoch()) / 1000 - referenceInstant};
}

QDateTime toDateTime(Date date) {
    return QDateTime::fromMSecsSinceEpoch(
        qRound64((date.sinceReference + referenceInstant) * 1000));
}

} // namespace ravelo
