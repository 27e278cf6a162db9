#include "store/history/Forgetting.h"

#include <QSet>

#include <algorithm>
#include <limits>

namespace ravelo {

std::optional<Seconds> Forgetting::left(const ClipItem& clip) const {
    return clip.secret.isEmpty() || !after_
               ? std::nullopt
               : std::optional(left(since_.value(clip.id, scheduler_.uptime())));
}

Seconds Forgetting::left(Seconds since) const {
    constexpr Seconds forever{std::numeric_limits<double>::infinity()};
    return std::max(since + after_.value_or(forever) - scheduler_.uptime(), Seconds(0));
}

void Forgetting::follow(const QList<ClipItem>& clips) {
    QSet<QUuid> secrets;
    for (const ClipItem& clip : clips) {
        if (!clip.secret.isEmpty()) {
            secrets.insert(clip.id);
            if (!since_.contains(clip.id)) {
                since_.insert(clip.id, scheduler_.uptime());
            }
        }
    }
    // A deleted clip that is restored keeps the time it had left.
    since_.removeIf([&](QHash<QUuid, Seconds>::iterator one) {
        return !secrets.contains(one.key()) && (!after_ || left(one.value()) <= Seconds(0));
    });
    await();
}

void Forgetting::await() {
    next_.reset();
    if (since_.isEmpty() || !after_) {
        return;
    }
    const Seconds first = *std::min_element(since_.cbegin(), since_.cend());
    next_ = scheduler_.after(left(first), [this] {
        QList<QUuid> over;
        for (auto one = since_.cbegin(); one != since_.cend(); ++one) {
            if (left(one.value()) <= Seconds(0)) {
                over.append(one.key());
            }
        }
        over.isEmpty() ? await() : forget_(over);
    });
}

} // namespace ravelo
