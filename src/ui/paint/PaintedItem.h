#pragma once

#include <QPainter>
#include <QQmlEngine>
#include <QQuickItem>

namespace ravelo {

/// An item that paints straight into the window, antialiased and at any fraction of a pixel, which
/// the software scene graph's own rectangles cannot. Only for that scene graph: it renders on the
/// main thread. Those derived from it name it in full, or qmllint would not find it.
class PaintedItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PaintedItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    /// It has to be painted again.
    void changed();

protected:
    /// Everything that `paint` touches lies within, in the item's coordinates. Nothing is painted
    /// if it is empty.
    [[nodiscard]] virtual QRectF paintedRect() const { return boundingRect(); }

    /// In the item's coordinates; clip and opacity are set.
    virtual void paint(QPainter& painter) = 0;

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) final;

private:
    class Node;
};

} // namespace ravelo
