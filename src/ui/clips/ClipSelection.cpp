#include "ui/clips/ClipSelection.h"

#include <utility>

namespace ravelo {

void ClipSelection::toggle(const QUuid& id) {
    if (ids_.removeAll(id) == 0) {
        ids_.append(id);
    }
    anchor_ = ids_.isEmpty() ? QUuid() : id;
    Q_EMIT changed();
}

void ClipSelection::choose(const QUuid& anchor, const QList<QUuid>& ids) {
    anchor_ = anchor;
    if (std::exchange(ids_, ids) != ids) {
        Q_EMIT changed();
    }
}

void ClipSelection::keepOnly(const QList<QUuid>& existing) {
    QList<QUuid> kept = ids_;
    kept.removeIf([&](const QUuid& id) { return !existing.contains(id); });
    choose(existing.contains(anchor_) ? anchor_ : QUuid(), kept);
}

} // namespace ravelo
