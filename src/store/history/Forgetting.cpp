#include "store/history/Forgetting.h"

#include <algorithm>

namespace ravelo {

std::optional<Seconds> Forgetting::left(const ClipItem& clip) const {
    return clip.secret.isEmpty() || !after_ ? std::nullopt : std::optional(left(clip.date));
}

/// Never longer than at first, even if the clock is set back.
Seconds Forgetting::left(Date copied) const {
    const Seconds age(scheduler_.now().sinceReference - copied.sinceReference);
    return std::clamp(*after_ - age, Seconds(0), *after_);
}

void Forgetting::follow(const QList<ClipItem>& clips) {
    QList<Due> all; // Not the clips: a deleted one must not stay in memory here.
    for (const ClipItem& clip : clips) {
        if (!clip.secret.isEmpty()) {
            all.append({clip.id, clip.date});
        }
    }
    await(all);
}

void Forgetting::await(const QList<Due>& all) {
    next_.reset();
    if (all.isEmpty() || !after_) {
        return;
    }
    Seconds next = *after_;
    for (const Due& due : all) {
        next = std::min(next, left(due.copied));
    }
    next_ = scheduler_.after(next, [this, all] {
        QList<QUuid> over;
        for (const Due& due : all) {
            if (left(due.copied) <= Seconds(0)) {
                over.append(due.id);
            }
        }
        over.isEmpty() ? await(all) : forget_(over);
    });
}

} // namespace ravelo
