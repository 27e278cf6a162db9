#include "ui/controls/OutgoingDrag.h"

#include <QDrag>
#include <QMimeData>
#include <QPixmap>
#include <QPointer>
#include <QQuickWindow>

namespace ravelo {

void OutgoingDrag::drag(QMimeData* data, const QImage& picture, QPointF hotSpot) {
    auto* drag = new QDrag(this); // Qt deletes it, with its data, after the drag.
    drag->setMimeData(data);
    drag->setPixmap(QPixmap::fromImage(picture));
    drag->setHotSpot(hotSpot.toPoint());
    setDragging(true);
    const QPointer<OutgoingDrag> alive(this);
    drag->exec(Qt::CopyAction, Qt::CopyAction);
    if (alive) {
        setDragging(false);
    }
}

void OutgoingDrag::setDragging(bool dragging) {
    if (dragging_ != dragging) {
        dragging_ = dragging;
        Q_EMIT draggingChanged();
    }
}

double OutgoingDrag::scaleOf(const QQuickItem& item) {
    return item.window() == nullptr ? 1 : item.window()->effectiveDevicePixelRatio();
}

} // namespace ravelo
