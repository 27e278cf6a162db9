#pragma once

#include <QImage>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>

class QMimeData;

namespace ravelo {

/// A drag out of the panel; drop targets get copies. Derived classes name it in full, or qmllint
/// does not find it. Main thread.
class OutgoingDrag : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    [[nodiscard]] bool isDragging() const { return dragging_; }

Q_SIGNALS:
    void draggingChanged();

protected:
    /// Drags `data` (owned by the drag), until the button is released. The pointer holds `picture`
    /// at `hotSpot`, in logical pixels. Runs an event loop of its own, in which the item that was
    /// pressed, and this, may be deleted: to be called from the event loop.
    void drag(QMimeData* data, const QImage& picture, QPointF hotSpot);

    void setDragging(bool dragging);

    /// Device pixels per logical pixel.
    [[nodiscard]] static double scaleOf(const QQuickItem& item);

private:
    bool dragging_ = false;
};

} // namespace ravelo
